#pragma once

#include <QString>

#include <functional>

/// The paths of a job's images, in the order of their numbers, without those that are taken. The
/// number is only ever raised, so that none is tried twice.
class FreePaths
{
public:
    /// The path of the image with a number from 1 on, or OutputNaming::noCounter.
    using PathOf = std::function<QString(int counter)>;

    explicit FreePaths(PathOf pathOf);

    /// For the next image. That of a job for a single one bears no number unless that name is
    /// taken.
    [[nodiscard]] QString first(bool isSingle);

    /// For the same image, when somebody else has just taken the last path.
    [[nodiscard]] QString next();

private:
    PathOf m_pathOf;
    int m_counter = 1; ///< to try next
};
