#pragma once

#include "series/FramePositions.h"
#include "stills/NameTemplate.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The parameters of a run of `stills`: plain values without Qt, so that the program can parse its
/// arguments before it loads any large library. Paths are the system's bytes.
namespace stills {

/// Width and height in pixels.
struct Size
{
    int width = 0;
    int height = 0;
};

/// What to do if the name of a picture is taken.
enum class Existing {
    NextName,  ///< use the next free name
    Skip,      ///< do not make the picture
    Overwrite, ///< replace the file
};

/// Filters for resizing.
enum class Filter { Area, Lanczos, Bicubic, Nearest };

/// What the files of pictures tell about their origin.
enum class Metadata { All, WithoutPlace, None };

/// The contact sheet.
struct Sheet
{
    NameTemplate name;
    int columns = 0; ///< 0 for about square
    int gap = 12;    ///< between the pictures, in pixels
    bool hasTimes = true;
    std::optional<std::string> title; ///< replaces the default title; empty for none
};

/// The number-th of count equal shares of the videos.
struct Shard
{
    int number = 1; ///< from 1
    int count = 1;
};

/// All options of a run, with their defaults.
struct Options
{
    std::vector<std::string> videos;
    std::optional<std::string> listFile; ///< "-" for standard input
    bool isRecursive = false;
    Shard shard;

    FramePositions positions;
    bool choosesPositions = false; ///< some were asked for

    std::optional<std::string> folder; ///< without one, beside each video
    bool writesToStandardOutput = false;
    std::optional<Size> size;
    bool enlarges = false;
    std::optional<Filter> filter;
    bool isInLinearLight = false;
    std::optional<std::string> format; ///< a suffix without dot, in small letters
    bool keepsDeepColours = false;
    std::optional<int> quality;               ///< 0 to 100
    std::optional<std::string> deinterlacing; ///< auto, on or off
    std::optional<bool> keepsHdr;             ///< in PNG and TIFF
    std::optional<std::string> profile;
    std::optional<std::string> nameProfile;
    std::optional<std::string> watermark;
    std::optional<std::string> like; ///< a still's file
    std::optional<Metadata> metadata;
    NameTemplate names;
    Existing existing = Existing::NextName;

    bool makesPictures = true; ///< false: the sheet alone
    std::optional<Sheet> sheet;

    bool isJson = false;
    bool showsProgress = false; ///< also where standard error is no terminal
    bool isQuiet = false;
    bool isVerbose = false;
    bool failsFast = false;
    int jobs = 0;                 ///< 0: one for each core
    std::int64_t memoryBytes = 0; ///< 0: the usual
    std::optional<std::int64_t> pictureBytes;
    std::optional<std::int64_t> positionTimeoutMs; ///< 0: any time
};

} // namespace stills
