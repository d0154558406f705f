#pragma once

class ImageProfile;

/// A window that shows what an image profile makes of its picture while the profile is being
/// edited.
///
/// The dialog that edits it asks its parent for this interface, so that it need not know the main
/// window. User-interface thread only.
class ImageProfilePreview
{
public:
    ImageProfilePreview() = default;
    virtual ~ImageProfilePreview() = default;
    ImageProfilePreview(const ImageProfilePreview&) = delete;
    ImageProfilePreview& operator=(const ImageProfilePreview&) = delete;

    /// Shows the picture as `profile` makes it. The profile is not null, holds what is entered at
    /// the moment, belongs to no manager and is gone after the call.
    virtual void imageProfileUpdated(ImageProfile* profile) = 0;
};
