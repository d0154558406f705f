#pragma once

#include <QProxyStyle>

/// Qt's Fusion style with the program's distances, text sizes and icons. The palette provides the
/// colours, and the style sheet the shapes of most controls. User-interface thread only.
class ThemeStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ThemeStyle();

    using QProxyStyle::polish;
    /// Applies the properties of a widget: see theme::textSizeProperty.
    void polish(QWidget* widget) override;
    /// Leaves the palette as it is. Qt hands over that of the system whenever it may have changed,
    /// before the application's own goes over it.
    void polish(QPalette& palette) override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    /// Icons of message boxes and of the file dialog are line icons, too.
    QIcon standardIcon(StandardPixmap pixmap, const QStyleOption* option,
                       const QWidget* widget) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                           const QWidget* widget) const override;
    /// Dialog buttons have no icons. A click activates no item, although it does so elsewhere on
    /// some desktops: lists here give it another meaning.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QPalette standardPalette() const override;

Q_SIGNALS:
    /// What Qt takes for the palette of the system, which may be the same as before.
    void systemPaletteSeen(const QPalette& palette);
};
