#pragma once

#include "profiles/OutputNaming.h"
#include "series/SeriesRunner.h"
#include "stills/Options.h"
#include "stills/VideoTask.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace stills {

/// Names the pictures of a run. A plain value, for any thread.
class PictureNames
{
public:
    /// @param naming  from a file-name profile, replaces the options' template
    /// @param suffix  of the files, without dot
    PictureNames(const Options& options, const std::optional<OutputNaming>& naming, QString suffix);

    /// The name of a picture, without its folder, for an attempt from 1 on.
    /// @param number  of the position within its video, from 1
    /// @param isOnly  whether it is the only one of its video
    [[nodiscard]] QByteArray name(const VideoTask& task, const SeriesPicture& picture, int number,
                                  bool isOnly, int attempt) const;

    /// The name of the picture at a position; nothing if it depends on the frame.
    [[nodiscard]] std::optional<QByteArray>
    nameBefore(const VideoTask& task, const SeriesTarget& target, int number) const;

    /// The name of a video's contact sheet.
    [[nodiscard]] QByteArray sheetName(const VideoTask& task, int attempt) const;

private:
    NameTemplate m_template;
    NameTemplate m_sheet;
    std::optional<OutputNaming> m_naming;
    std::string m_suffix;
    bool m_takesAskedTime = true;
};

} // namespace stills
