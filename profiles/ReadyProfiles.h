#pragma once

class ImageProfile;
class ProfileManager;

/// Image profiles that are there without being set up. User-interface thread only.
namespace ReadyProfiles {

/// Appends "Original size", "Full HD", "Web 1280" and "Thumbnail 320" to the manager of image
/// profiles and saves them, but for those whose names are taken. What was used last stays so.
void addTo(ProfileManager& manager);

/// The same to the program's image profiles, once for each user: what was deleted or renamed does
/// not come back. Settings: "hasReadyProfiles".
void addOnFirstStart();

/// The profile of the manager that makes images in the video's own size and is like the given one
/// in all else; it is made, listed and saved where there is none. The manager owns it.
[[nodiscard]] ImageProfile* inOriginalSize(ImageProfile& profile, ProfileManager& manager);

} // namespace ReadyProfiles
