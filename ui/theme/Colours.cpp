#include "ui/theme/Colours.h"

namespace {

/// Greys are neutral, with three equal channels; only the accent has a hue.
struct Colours
{
    QRgb window;
    QRgb base;
    QRgb alternateBase;
    QRgb button;
    QRgb hover;
    QRgb pressed;
    QRgb text;
    QRgb quietText;
    QRgb disabledText;
    QRgb outline;
    QRgb disabledOutline;
    QRgb separator;
    QRgb canvas;
    QRgb toolTip;
    QRgb accent;
    QRgb accentText;
    QRgb accentLine;
    QRgb visitedLink;
    QRgb disabledAccent;
    QRgb error;
};

constexpr Colours dark{
    0xff242424, // window
    0xff1b1b1b, // base
    0xff212121, // alternateBase
    0xff323232, // button
    0xff3e3e3e, // hover
    0xff4a4a4a, // pressed
    0xffececec, // text
    0xffa8a8a8, // quietText
    0xff7d7d7d, // disabledText
    0xff808080, // outline
    0xff484848, // disabledOutline
    0xff3a3a3a, // separator
    0xff141414, // canvas
    0xff3a3a3a, // toolTip
    0xff2b72cf, // accent
    0xffffffff, // accentText
    0xff6cabff, // accentLine
    0xffb79bff, // visitedLink
    0xff4a4a4a, // disabledAccent
    0xffff8178, // error
};

constexpr Colours light{
    0xfff2f2f2, // window
    0xffffffff, // base
    0xfff7f7f7, // alternateBase
    0xfffcfcfc, // button
    0xffe6e6e6, // hover
    0xffd6d6d6, // pressed
    0xff1c1c1c, // text
    0xff5c5c5c, // quietText
    0xff8c8c8c, // disabledText
    0xff858585, // outline
    0xffcccccc, // disabledOutline
    0xffd9d9d9, // separator
    0xffdadada, // canvas
    0xfffcfcfc, // toolTip
    0xff2870cc, // accent
    0xffffffff, // accentText
    0xff1a5cb0, // accentLine
    0xff6a3fb5, // visitedLink
    0xffc4c4c4, // disabledAccent
    0xffc02626, // error
};

void setForAll(QPalette& palette, const Colours& colours)
{
    palette.setColor(QPalette::Window, colours.window);
    palette.setColor(QPalette::WindowText, colours.text);
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternateBase);
    palette.setColor(QPalette::Text, colours.text);
    palette.setColor(QPalette::Button, colours.button);
    palette.setColor(QPalette::ButtonText, colours.text);
    palette.setColor(QPalette::ToolTipBase, colours.toolTip);
    palette.setColor(QPalette::ToolTipText, colours.text);
    palette.setColor(QPalette::LinkVisited, colours.visitedLink);
    palette.setColor(QPalette::HighlightedText, colours.accentText);
    palette.setColor(theme::hoverRole, colours.hover);
    palette.setColor(theme::pressedRole, colours.pressed);
    palette.setColor(theme::outlineRole, colours.outline);
    palette.setColor(theme::separatorRole, colours.separator);
    palette.setColor(theme::canvasRole, colours.canvas);
    palette.setColor(theme::accentRole, colours.accent);
    palette.setColor(theme::accentLineRole, colours.accentLine);
    palette.setColor(theme::quietTextRole, colours.quietText);
    palette.setColor(theme::errorRole, colours.error);
}

void setForDisabled(QPalette& palette, const Colours& colours)
{
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText,
          theme::quietTextRole, theme::accentLineRole}) {
        palette.setColor(QPalette::Disabled, role, colours.disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, colours.window);
    palette.setColor(QPalette::Disabled, QPalette::Button, colours.window);
    palette.setColor(QPalette::Disabled, theme::outlineRole, colours.disabledOutline);
    palette.setColor(QPalette::Disabled, theme::accentRole, colours.disabledAccent);
}

} // namespace

QPalette theme::palette(Scheme scheme)
{
    const Colours& colours = scheme == Scheme::Dark ? dark : light;
    QPalette palette;
    setForAll(palette, colours);
    setForDisabled(palette, colours);
    return palette;
}

theme::Scheme theme::schemeOf(const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    return ground.lightness() < text.lightness() ? Scheme::Dark : Scheme::Light;
}
