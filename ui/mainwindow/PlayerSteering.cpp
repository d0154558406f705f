#include "ui/mainwindow/PlayerSteering.h"

#include "ui/mainwindow/PlaybackSpeeds.h"
#include "ui/mainwindow/TimeSlider.h"
#include "ui/mainwindow/VideoFactsText.h"
#include "ui/widgets/TimeText.h"
#include "ui/widgets/TimecodeField.h"

#include <QtAV/AVPlayer.h>

#include <QFileInfo>
#include <QLabel>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Frames of files up to this size are counted at once: reading them takes about a second on a slow
/// disk, and most of the file is still cached.
constexpr qint64 quicklyReadBytes = 64 * 1024 * 1024;

} // namespace

PlayerSteering::PlayerSteering(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_player(parts.player)
    , m_slider(parts.slider)
    , m_field(parts.field)
    , m_factsLabel(parts.factsLabel)
    , m_preview(new SliderPreview(&parts.slider))
    , m_loop(parts.player)
{
    using QtAV::AVPlayer;
    connect(&m_player, &AVPlayer::mediaStatusChanged, this, &PlayerSteering::followVideo);
    connect(&m_player, &AVPlayer::stopped, this, &PlayerSteering::leaveVideo);
    connect(&m_player, &AVPlayer::positionChanged, this, &PlayerSteering::showFacts);
    connect(&m_player, &AVPlayer::speedChanged, this, &PlayerSteering::showFacts);
    connect(&m_slider, &TimeSlider::pointedAt, this, &PlayerSteering::preview);
    connect(&m_slider, &TimeSlider::pointedAway, this, &PlayerSteering::hidePreview);
    connect(&m_slider, &TimeSlider::stepped, this, &PlayerSteering::step);
    connect(&m_thumbnails, &Thumbnails::made, this, &PlayerSteering::showThumbnail);
    connect(&m_counter, &FrameCounter::finished, this, &PlayerSteering::noticeCounted);
    connect(&m_field, &TimecodeField::entered, this, &PlayerSteering::goToTyped);
}

/// Prepares for a video that has just been opened.
void PlayerSteering::followVideo()
{
    if (m_isFollowing || !m_player.isLoaded()) {
        return;
    }
    m_isFollowing = true;
    m_thumbnails.setSource(m_player.file());
    m_counter.setSource(m_player.file());
    if (QFileInfo(m_player.file()).size() <= quicklyReadBytes) {
        m_counter.count();
    }
    showChapters();
    showFacts();
}

void PlayerSteering::leaveVideo()
{
    m_isFollowing = false;
    m_thumbnails.setSource(QString());
    m_counter.setSource(QString());
    m_typed.reset();
    clearStretch();
    playNormally();
    showChapters();
    showFacts();
    hidePreview();
}

void PlayerSteering::showFacts()
{
    if (!m_player.isLoaded()) {
        m_factsLabel.clear();
        return;
    }
    const QtAV::MediaFacts facts = m_player.facts();
    const auto& shown = m_player.statistics().video_only;
    m_factsLabel.setText(VideoFactsText::line(frameOnScreen(), facts, {shown.width, shown.height},
                                              m_player.speed()));
}

std::optional<VideoFactsText::FrameNumber> PlayerSteering::frameOnScreen() const
{
    const qint64 ms = m_player.displayPosition();
    if (const std::optional<int> counted = m_counter.numberAt(ms)) {
        return VideoFactsText::FrameNumber{*counted, true};
    }
    return VideoFactsText::estimated(ms, m_player.facts());
}

void PlayerSteering::showChapters()
{
    QVector<qint64> times;
    const QVector<QtAV::Chapter> chapters = m_player.facts().chapters;
    for (const QtAV::Chapter& chapter : chapters) {
        times.append(chapter.startMs);
    }
    m_slider.setChapterTicks(times);
}

// --- the speed -----------------------------------------------------------------------------------

void PlayerSteering::slower()
{
    setSpeed(PlaybackSpeeds::slower(m_player.speed()));
}

void PlayerSteering::faster()
{
    setSpeed(PlaybackSpeeds::faster(m_player.speed()));
}

void PlayerSteering::playNormally()
{
    m_player.setSpeed(1.0);
}

void PlayerSteering::setSpeed(qreal speed)
{
    m_player.setSpeed(speed);
    Q_EMIT message(tr("Speed %1").arg(PlaybackSpeeds::text(m_player.speed())));
}

// --- the stretch ---------------------------------------------------------------------------------

void PlayerSteering::markStart()
{
    m_stretch.markStart(m_player.displayPosition());
    showStretch();
    Q_EMIT message(tr("The stretch starts at %1").arg(timeText(*m_stretch.fromMs)));
}

void PlayerSteering::markEnd()
{
    m_stretch.markEnd(m_player.displayPosition());
    showStretch();
    Q_EMIT message(tr("The stretch ends at %1").arg(timeText(*m_stretch.toMs)));
}

void PlayerSteering::clearStretch()
{
    m_stretch = MarkedStretch();
    showStretch();
}

void PlayerSteering::showStretch()
{
    m_slider.setStretch(m_stretch);
    m_loop.setStretch(m_stretch);
}

void PlayerSteering::setLooping(bool on)
{
    m_loop.setEnabled(on);
}

// --- the slider ----------------------------------------------------------------------------------

void PlayerSteering::preview(qint64 ms, int x)
{
    m_preview->showAt(m_slider.mapToGlobal(QPoint(x, 0)), previewText(ms));
    if (m_previewed == ms) {
        return;
    }
    m_previewed = ms;
    const QImage picture = m_thumbnails.at(ms);
    // The old picture stays until the new one is available.
    if (picture.isNull()) {
        m_thumbnails.request(ms);
    } else {
        m_preview->setPicture(picture);
    }
}

QString PlayerSteering::previewText(qint64 ms) const
{
    const QVector<QtAV::Chapter> chapters = m_player.facts().chapters;
    const auto isLater = [](qint64 time, const QtAV::Chapter& chapter) {
        return time < chapter.startMs;
    };
    const auto next = std::upper_bound(chapters.cbegin(), chapters.cend(), ms, isLater);
    const QString title = next == chapters.cbegin() ? QString() : std::prev(next)->title;
    const QString time = timeText(ms);
    return title.isEmpty() ? time : QStringLiteral("%1 \u00b7 %2").arg(time, title);
}

void PlayerSteering::hidePreview()
{
    m_preview->hide();
    m_preview->setPicture(QImage());
    m_previewed.reset();
    m_thumbnails.cancel();
}

void PlayerSteering::showThumbnail(qint64 ms)
{
    if (m_previewed) {
        m_preview->setPicture(m_thumbnails.at(ms));
    }
}

// --- going to frames -----------------------------------------------------------------------------

void PlayerSteering::step(int frames)
{
    for (int i = 0; i < std::abs(frames); ++i) {
        if (frames > 0) {
            m_player.stepForward();
        } else {
            m_player.stepBackward();
        }
    }
}

void PlayerSteering::goToStart()
{
    m_player.pause();
    m_player.setPosition(0);
}

void PlayerSteering::goToEnd()
{
    m_player.pause();
    m_player.setPosition(m_player.duration());
}

void PlayerSteering::goToTyped(const QString& text)
{
    m_typed.reset();
    const std::optional<TypedPosition> typed = typedPosition(text);
    if (!typed) {
        refuse(text, tr("write 1:02:03.5, +10s, -2s, f1234 or 75%"));
    } else if (typed->place.kind == FramePosition::Kind::FrameNumber && !m_counter.isCounted()) {
        countForTyped(*typed, text);
    } else {
        goTo(*typed, text);
    }
}

void PlayerSteering::countForTyped(const TypedPosition& typed, const QString& text)
{
    m_typed = typed;
    m_typedText = text;
    m_counter.count();
    Q_EMIT message(tr("Counting the frames\u2026"));
}

void PlayerSteering::noticeCounted()
{
    showFacts();
    const auto typed = std::exchange(m_typed, std::nullopt);
    // If the field was left, the result is no longer wanted.
    if (typed && m_field.isTyping()) {
        goTo(*typed, m_typedText);
    }
}

/// Nothing for a position outside the video.
std::optional<qint64> PlayerSteering::timeOf(const TypedPosition& typed) const
{
    const qint64 duration = m_player.duration();
    const double value = typed.place.value;
    if (typed.way == TypedPosition::Way::By) {
        return std::clamp<qint64>(m_player.position() + std::llround(value), 0, duration);
    }
    switch (typed.place.kind) {
    case FramePosition::Kind::Percent:
        return std::llround(static_cast<double>(duration) * value / 100.0);
    case FramePosition::Kind::FrameNumber:
        return m_counter.timeOf(std::llround(value));
    case FramePosition::Kind::Last:
        return duration;
    case FramePosition::Kind::Milliseconds:
        break;
    }
    const auto ms = static_cast<qint64>(value);
    return ms <= duration ? std::make_optional(ms) : std::nullopt;
}

void PlayerSteering::goTo(const TypedPosition& typed, const QString& text)
{
    const std::optional<qint64> ms = timeOf(typed);
    if (!ms) {
        const bool isUncounted =
            typed.place.kind == FramePosition::Kind::FrameNumber && !m_counter.isCounted();
        refuse(text,
               isUncounted ? tr("the frames cannot be counted") : tr("the video ends before it"));
        return;
    }
    m_player.pause();
    m_player.setPosition(*ms);
    m_field.finish();
    Q_EMIT typedPositionTaken();
}

void PlayerSteering::refuse(const QString& text, const QString& reason)
{
    m_field.refuse();
    Q_EMIT message(tr("No place in the video: \u201c%1\u201d; %2").arg(text.simplified(), reason));
}
