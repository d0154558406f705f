#pragma once

class ImageProfile;
class ProfileManager;

/// Predefined image profiles. User-interface thread only.
namespace ReadyProfiles {

/// Appends "Original size", "Full HD", "Web 1280" and "Thumbnail 320" to the manager of image
/// profiles and saves them, except those whose names are taken. The last used profile does not
/// change.
void addTo(ProfileManager& manager);

/// Does the same to the program's image profiles, but only once per user: deleted and renamed
/// profiles do not come back. Uses the setting "hasReadyProfiles".
void addOnFirstStart();

/// The manager's profile that keeps the video's own size and otherwise equals the given one. It is
/// created, listed and saved if it does not exist. The manager owns it.
[[nodiscard]] ImageProfile* inOriginalSize(ImageProfile& profile, ProfileManager& manager);

} // namespace ReadyProfiles
