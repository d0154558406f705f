#pragma once

// Values of nal_unit_type that tell key pictures and unreferenced pictures.
namespace QtAV {

/// ITU-T H.264, table 7-1.
namespace h264 {
constexpr int slice = 1;
constexpr int refreshSlice = 5;
constexpr int supplementalInformation = 6;
constexpr int delimiter = 9;
constexpr int filler = 12;
} // namespace h264

/// ITU-T H.265, table 7-1.
namespace hevc {
constexpr int lastOrdinarySlice = 15; ///< up to here, even types are of unreferenced pictures
constexpr int firstRefreshSlice = 16;
constexpr int lastRefreshSlice = 23;
constexpr int lastSlice = 31;
constexpr int delimiter = 35;
constexpr int filler = 38;
constexpr int prefixInformation = 39;
constexpr int suffixInformation = 40;
} // namespace hevc

} // namespace QtAV
