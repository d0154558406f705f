#pragma once

#include "profiles/BaseProfile.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPoint>
#include <QString>

class ProfileManager;

/// One watermark: a text with a drop shadow, or a picture, anchored to one of nine places of the
/// output image. A profile newly created by the manager is sized relative to the output image; one
/// stored by an older version keeps its own size.
///
/// Pictures are copied into a folder of the application; a profile stores only the name inside that
/// folder. The setters store any value.
class WatermarkProfile : public BaseProfile
{
    Q_OBJECT
    /// 0 for text, any other value for a picture.
    Q_PROPERTY(int watermarkType READ watermarkType WRITE setWatermarkType)
    /// Anchor, as alignmentFromIndex() takes it.
    Q_PROPERTY(int alignmentIndex READ alignmentIndex WRITE setAlignmentIndex)
    /// Distance from the anchored edges, in pixels.
    Q_PROPERTY(int xMargin READ xMargin WRITE setXMargin)
    Q_PROPERTY(int yMargin READ yMargin WRITE setYMargin)
    /// Opacity of the whole watermark, 0 (invisible) to 255 (opaque).
    Q_PROPERTY(int alpha READ alpha WRITE setAlpha)
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QFont textFont READ textFont WRITE setTextFont)
    /// Colours of the text and its shadow, each with an opacity of its own.
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(QColor textShadowColor READ textShadowColor WRITE setTextShadowColor)
    /// How far the shadow lies to the right of and below the text, in pixels.
    Q_PROPERTY(int textShadowXOffset READ textShadowXOffset WRITE setTextShadowXOffset)
    Q_PROPERTY(int textShadowYOffset READ textShadowYOffset WRITE setTextShadowYOffset)
    /// Name of the picture inside the watermark folder, no path.
    Q_PROPERTY(QString imageFile READ imageFile WRITE setImageFile)
    /// The picture itself; derived, and read-only so that it is never persisted.
    Q_PROPERTY(QImage image READ image)
    /// If false, the shadow's colour and offset are kept, but no shadow is drawn.
    Q_PROPERTY(bool textShadow READ textShadow WRITE setTextShadow)
    /// Whether the watermark is sized relative to the output image's width. Otherwise it has its
    /// own size: that of the font, or the pixels of the picture.
    Q_PROPERTY(bool relativeSize READ relativeSize WRITE setRelativeSize)
    /// The relative width in per cent, 1 to 100.
    Q_PROPERTY(int relativeWidth READ relativeWidth WRITE setRelativeWidth)

public:
    /// A profile without a name, with a fresh id and default values; the argument is ignored.
    explicit WatermarkProfile(WatermarkProfile* ignored = nullptr);
    ~WatermarkProfile() override;

    int watermarkType() const { return m_watermarkType; }
    void setWatermarkType(int type) { m_watermarkType = type; }

    int alignmentIndex() const { return m_alignmentIndex; }
    void setAlignmentIndex(int index) { m_alignmentIndex = index; }

    int xMargin() const { return m_xMargin; }
    void setXMargin(int margin) { m_xMargin = margin; }

    int yMargin() const { return m_yMargin; }
    void setYMargin(int margin) { m_yMargin = margin; }

    int alpha() const { return m_alpha; }
    void setAlpha(int alpha) { m_alpha = alpha; }

    QString text() const { return m_text; }
    void setText(const QString& text) { m_text = text; }

    QFont textFont() const { return m_textFont; }
    void setTextFont(const QFont& font) { m_textFont = font; }

    QColor textColor() const { return m_textColor; }
    void setTextColor(const QColor& color) { m_textColor = color; }

    QColor textShadowColor() const { return m_textShadowColor; }
    void setTextShadowColor(const QColor& color) { m_textShadowColor = color; }

    int textShadowXOffset() const { return m_textShadowXOffset; }
    void setTextShadowXOffset(int offset) { m_textShadowXOffset = offset; }

    int textShadowYOffset() const { return m_textShadowYOffset; }
    void setTextShadowYOffset(int offset) { m_textShadowYOffset = offset; }

    bool textShadow() const { return m_textShadow; }
    void setTextShadow(bool isOn) { m_textShadow = isOn; }

    bool relativeSize() const { return m_relativeSize; }
    void setRelativeSize(bool isRelative) { m_relativeSize = isRelative; }

    int relativeWidth() const { return m_relativeWidth; }
    void setRelativeWidth(int percent) { m_relativeWidth = percent; }

    QString imageFile() const { return m_imageFile; }
    void setImageFile(const QString& fileName) { m_imageFile = fileName; }

    /// As in the base class. A group without the key for the relative size was stored by a version
    /// that did not have it.
    void load(const QSettings& settings) override;

    /// Maximum size of a picture: it is drawn pixel by pixel and takes 4 bytes for each.
    static constexpr qint64 mostPixels = 64LL * 1024 * 1024;

    /// The picture named by imageFile(); null if it cannot be read or is too large.
    ///
    /// All profiles share a cache of one picture, which goes by the name alone: a file replaced
    /// under the same name is not read again while its name stays cached, and a failure is cached
    /// like a picture. One thread at a time.
    QImage image() const;

    /// The place of the watermark as alignment flags.
    Qt::Alignment alignment() const { return alignmentFromIndex(m_alignmentIndex); }

    /// The offset of the shadow from the text, in pixels.
    QPoint textShadowOffset() const { return {m_textShadowXOffset, m_textShadowYOffset}; }

    /// The nine places row by row from 0, top left, to 8, bottom right; any other index is bottom
    /// right too.
    static Qt::Alignment alignmentFromIndex(int index);

    /// The full path of a picture in the watermark folder of the application's data location.
    /// Creates the folder if it is missing; a failure shows only when the path is used.
    static QString pathForImage(const QString& fileName);

    /// The one manager of watermark profiles, created on first call over "WatermarkProfiles.ini".
    /// Having no watermark is an ordinary choice, so no default profile is created.
    static ProfileManager* profileManager();

private:
    int m_watermarkType = 0;
    int m_alignmentIndex = 8;
    int m_xMargin = 15;
    int m_yMargin = 15;
    int m_alpha = 255;
    QString m_text;
    QFont m_textFont{QStringLiteral("Times"), 12};
    QColor m_textColor{255, 255, 255, 225};
    QColor m_textShadowColor{0, 0, 0, 175};
    int m_textShadowXOffset = 0;
    int m_textShadowYOffset = 0;
    bool m_textShadow = true;
    bool m_relativeSize = false;
    int m_relativeWidth = 20;
    QString m_imageFile;

    static inline ProfileManager* s_profileManager = nullptr;
    static inline QString s_loadedImageFileName;
    static inline QImage s_loadedImage;
};
