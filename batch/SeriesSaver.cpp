#include "batch/SeriesSaver.h"

#include "imaging/FilePublisher.h"

#include <algorithm>
#include <iterator>
#include <utility>

SeriesSaver::SeriesSaver(FreePaths paths, bool isSingle, Listener listener)
    : m_paths(std::move(paths))
    , m_isSingle(isSingle)
    , m_listener(std::move(listener))
{}

void SeriesSaver::announce(int /*video*/, const QVector<SeriesTarget>& targets)
{
    for (const SeriesTarget& target : targets) {
        m_asked.append(target.ms);
    }
}

void SeriesSaver::begin(const SeriesFacts& facts)
{
    m_listener.expecting(facts.expected.value_or(0));
}

void SeriesSaver::take(SeriesPicture picture)
{
    m_listener.beforePicture();
    const qint64 asked = picture.askedMs.value_or(m_reachedMs);
    m_reachedMs = std::max({m_reachedMs, asked, picture.timeMs.value_or(asked)});
    if (!save(picture)) {
        m_failed.append(asked);
    }
}

bool SeriesSaver::save(const SeriesPicture& picture)
{
    if (!picture.error.isEmpty()) {
        m_listener.failed(picture.error);
        return false;
    }
    m_listener.showing(picture.baseLayer);
    QString path = m_paths.first(m_isSingle);
    WriteFailure failure;
    const WriteResult result = write(path, picture.content, failure);
    if (result == WriteResult::Written) {
        m_listener.saved(picture.image);
    } else {
        m_listener.notSaved(failure);
    }
    return result == WriteResult::Written;
}

/// Tries the next free name while others take the names, and tries again if there may be room now.
WriteResult SeriesSaver::write(QString& path, const QByteArray& content, WriteFailure& failure)
{
    m_listener.saving(path);
    for (;;) {
        const auto result = FilePublisher::publish(path, content, ExistingFile::Keep, &failure);
        if (result == WriteResult::AlreadyExists) {
            path = m_paths.next();
            m_listener.saving(path);
        } else if (result == WriteResult::Written || !failure.isLackOfRoom() ||
                   !m_listener.lacksRoom(failure)) {
            return result;
        }
    }
}

void SeriesSaver::end(int /*video*/, const QString& error)
{
    m_isComplete = error.isEmpty();
    if (!m_isComplete) {
        m_listener.failed(error);
    }
}

QVector<qint64> SeriesSaver::missed() const
{
    QVector<qint64> missed = m_failed;
    const auto isUnreached = [this](qint64 ms) { return ms > m_reachedMs; };
    if (!m_isComplete) {
        std::copy_if(m_asked.cbegin(), m_asked.cend(), std::back_inserter(missed), isUnreached);
    }
    return missed;
}
