#pragma once

// Values of nal_unit_type that say whether a picture is a key picture, and whether any other needs it.
namespace QtAV {

/// ITU-T H.264, table 7-1.
namespace h264 {
constexpr int Slice = 1;
constexpr int RefreshSlice = 5;
constexpr int SupplementalInformation = 6;
constexpr int Delimiter = 9;
constexpr int Filler = 12;
} // namespace h264

/// ITU-T H.265, table 7-1.
namespace hevc {
constexpr int LastOrdinarySlice = 15; ///< up to here, even types are of unreferenced pictures
constexpr int FirstRefreshSlice = 16;
constexpr int LastRefreshSlice = 23;
constexpr int LastSlice = 31;
constexpr int Delimiter = 35;
constexpr int Filler = 38;
constexpr int PrefixInformation = 39;
constexpr int SuffixInformation = 40;
} // namespace hevc

} // namespace QtAV
