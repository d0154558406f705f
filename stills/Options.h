#pragma once

#include "stills/NameTemplate.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What a run of `stills` is asked to do: plain values without Qt, so that the program can read its
/// arguments before it loads any large library. Paths are the bytes that the system knows.
namespace stills {

/// One place in a video.
struct Position
{
    enum class Kind { Milliseconds, Percent, FrameNumber, Last };

    Kind kind = Kind::Milliseconds;
    double value = 0.0; ///< by the kind: milliseconds, 0 to 100, or a number from 0
};

/// A stretch at the start or the end of a video that gives no pictures.
struct Skip
{
    bool isPercent = false;
    double value = 0.0; ///< per cent, 0 to 100, or milliseconds
};

/// Which frames are asked for.
struct Positions
{
    enum class Kind { Count, Every, List, KeyFrames, Scenes };

    Kind kind = Kind::Count;
    int count = 10;
    std::int64_t everyMs = 0;
    std::vector<Position> list;
    double sceneThreshold = 0.3;
    Skip front;
    Skip back;
};

struct Size
{
    int width = 0;
    int height = 0;
};

/// What becomes of a picture whose name is taken.
enum class Existing {
    NextName,  ///< it gets the next free name
    Skip,      ///< it is not made again
    Overwrite, ///< it takes the place
};

/// The contact sheet.
struct Sheet
{
    NameTemplate name;
    int columns = 0; ///< 0: about square
    int gap = 12;    ///< between the pictures, in pixels
    bool hasTimes = true;
    std::optional<std::string> title; ///< in place of the usual one; empty for none
};

struct Shard
{
    int number = 1; ///< from 1
    int count = 1;
};

struct Options
{
    std::vector<std::string> videos;
    std::optional<std::string> listFile; ///< "-" for standard input
    bool isRecursive = false;
    Shard shard;

    Positions positions;

    std::optional<std::string> folder; ///< without one, beside each video
    bool writesToStandardOutput = false;
    std::optional<Size> size;
    bool enlarges = false;
    std::optional<std::string> format;        ///< a suffix without dot, in small letters
    std::optional<int> quality;               ///< 0 to 100
    std::optional<std::string> deinterlacing; ///< auto, on or off
    std::optional<std::string> profile;
    std::optional<std::string> nameProfile;
    std::optional<std::string> watermark;
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
};

} // namespace stills
