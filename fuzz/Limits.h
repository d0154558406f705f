#pragma once

#include <QtAV/Deadline.h>
#include <QtAV/FrameResult.h>

#include <QtGlobal>

#include <chrono>
#include <memory>

/// Limits for one input of a harness, so that a slow input is no finding.
namespace fuzzlimits {

constexpr qint64 pictureBytes = 64 << 20;
constexpr std::chrono::milliseconds time{3000};

/// A deadline that starts now.
inline std::shared_ptr<QtAV::Deadline> startedDeadline()
{
    auto deadline = std::make_shared<QtAV::Deadline>();
    deadline->start(time);
    return deadline;
}

inline QtAV::IsCancelled until(const std::shared_ptr<QtAV::Deadline>& deadline)
{
    return [deadline] { return deadline->hasPassed(); };
}

} // namespace fuzzlimits
