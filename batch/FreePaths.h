#pragma once

#include <QString>

#include <functional>

/// The paths of a job's images in the order of their numbers, without existing ones. The number
/// only rises, so that none is tried twice. One thread at a time may use an object.
class FreePaths
{
public:
    /// Returns the path of the image with a number from 1 on, or with OutputNaming::noCounter.
    using PathOf = std::function<QString(int counter)>;

    explicit FreePaths(PathOf pathOf);

    /// The path for the next image. That of a single image has no number unless the name is taken.
    [[nodiscard]] QString first(bool isSingle);

    /// Another path for the same image, if the previous path has just been taken by somebody else.
    [[nodiscard]] QString next();

private:
    PathOf m_pathOf;
    int m_counter = 1; ///< next number to try
};
