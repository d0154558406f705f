#include "qtav/src/Deinterlacer.h"

#include "qtav/src/FFmpegCompat.h"

#include <algorithm>
#include <utility>

namespace QtAV {

namespace {

using Moment = FieldFilter::Moment;

AVPixelFormat formatOf(const AVFrame& picture)
{
    return static_cast<AVPixelFormat>(picture.format);
}

bool isAlike(const AVFrame* neighbour, const AVFrame& picture)
{
    return neighbour && neighbour->width == picture.width && neighbour->height == picture.height &&
           neighbour->format == picture.format;
}

/// Removes neighbours of another size or format.
FieldPictures onlyAlike(const FieldPictures& pictures)
{
    const AVFrame& picture = *pictures.picture;
    return {isAlike(pictures.before, picture) ? pictures.before : nullptr, &picture,
            isAlike(pictures.after, picture) ? pictures.after : nullptr};
}

} // namespace

Deinterlacing deinterlacingNamed(const QString& name)
{
    if (name == QLatin1String("on")) {
        return Deinterlacing::On;
    }
    return name == QLatin1String("off") ? Deinterlacing::Off : Deinterlacing::Automatic;
}

bool Deinterlacer::mayTake(const AVFrame& picture, Deinterlacing deinterlacing)
{
    switch (deinterlacing) {
    case Deinterlacing::Automatic:
        return isInterlaced(picture) && combing::reads(formatOf(picture));
    case Deinterlacing::On:
        return true;
    case Deinterlacing::Off:
        break;
    }
    return false;
}

bool Deinterlacer::combsByItself(const AVFrame& picture)
{
    return combing::fieldsOf({nullptr, &picture, nullptr}, isTopFieldFirst(picture)) !=
           combing::Fields::Whole;
}

bool Deinterlacer::isOfTwoMoments(const FieldPictures& pictures, Deinterlacing deinterlacing)
{
    const AVFrame& picture = *pictures.picture;
    if (deinterlacing != Deinterlacing::Automatic || !mayTake(picture, deinterlacing)) {
        return deinterlacing == Deinterlacing::On;
    }
    return combing::fieldsOf(onlyAlike(pictures), isTopFieldFirst(picture)) ==
           combing::Fields::Apart;
}

FramePtr Deinterlacer::deinterlaced(const FieldPictures& pictures, Deinterlacing deinterlacing,
                                    Moment moment)
{
    const AVFrame& picture = *pictures.picture;
    if (!mayTake(picture, deinterlacing)) {
        return nullptr;
    }
    const bool isTopFirst = isTopFieldFirst(picture);
    const FieldPictures alike = onlyAlike(pictures);
    if (deinterlacing == Deinterlacing::On) {
        return filtered(alike, isTopFirst, moment);
    }
    switch (combing::fieldsOf(alike, isTopFirst)) {
    case combing::Fields::Whole:
        break;
    case combing::Fields::FirstWithBefore:
        return combing::woven(picture, *alike.before, isTopFirst);
    case combing::Fields::SecondWithAfter:
        return combing::woven(*alike.after, picture, isTopFirst);
    case combing::Fields::Apart:
        return filtered(alike, isTopFirst, moment);
    }
    return nullptr;
}

FramePtr Deinterlacer::filtered(const FieldPictures& pictures, bool isTopFirst, Moment moment)
{
    const AVFrame& picture = *pictures.picture;
    std::optional<FieldFilter> filter =
        takeFilter({{picture.width, picture.height}, formatOf(picture), moment});
    if (!filter) {
        return nullptr;
    }
    FramePtr made = filter->filter(pictures, isTopFirst);
    if (made) {
        keepFilter(std::move(*filter));
    }
    return made;
}

std::optional<FieldFilter> Deinterlacer::takeFilter(const FieldFilter::Task& task)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto found = std::find_if(m_idle.begin(), m_idle.end(),
                                        [&](const FieldFilter& f) { return f.task() == task; });
        if (found != m_idle.end()) {
            FieldFilter filter = std::move(*found);
            m_idle.erase(found);
            return filter;
        }
    }
    return FieldFilter::make(task);
}

void Deinterlacer::keepFilter(FieldFilter filter)
{
    const std::lock_guard lock(m_mutex);
    if (m_idle.size() == mostIdleFilters) {
        m_idle.erase(m_idle.begin());
    }
    m_idle.push_back(std::move(filter));
}

} // namespace QtAV
