#include "ui/theme/ThemeStyle.h"

#include "ui/theme/Colours.h"
#include "ui/theme/Icons.h"
#include "ui/theme/Spacing.h"
#include "ui/theme/TextSize.h"

#include <QLabel>
#include <QVariant>

namespace {

/// The line icon that replaces an icon of Qt; empty if Qt's own is used.
QString lineIconOf(QStyle::StandardPixmap pixmap)
{
    switch (pixmap) {
    case QStyle::SP_MessageBoxInformation:
        return QStringLiteral("Info");
    case QStyle::SP_MessageBoxWarning:
        return QStringLiteral("Warning");
    case QStyle::SP_MessageBoxCritical:
        return QStringLiteral("Error");
    case QStyle::SP_MessageBoxQuestion:
        return QStringLiteral("Help");
    case QStyle::SP_ArrowBack:
    case QStyle::SP_FileDialogBack:
        return QStringLiteral("Back");
    case QStyle::SP_ArrowForward:
        return QStringLiteral("Forward");
    case QStyle::SP_FileDialogToParent:
        return QStringLiteral("Parent");
    case QStyle::SP_FileDialogNewFolder:
        return QStringLiteral("NewFolder");
    case QStyle::SP_FileDialogListView:
        return QStringLiteral("List");
    case QStyle::SP_FileDialogDetailedView:
        return QStringLiteral("Details");
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirLinkIcon:
    case QStyle::SP_DirHomeIcon:
        return QStringLiteral("Folder");
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
        return QStringLiteral("File");
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DesktopIcon:
    case QStyle::SP_DriveHDIcon:
        return QStringLiteral("Computer");
    default:
        return {};
    }
}

} // namespace

ThemeStyle::ThemeStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{}

void ThemeStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    theme::applyHeading(*widget);
    theme::applyTextSize(*widget);
    if (widget->property(theme::quietProperty).toBool()) {
        widget->setForegroundRole(theme::quietTextRole);
    }
}

void ThemeStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    Q_EMIT systemPaletteSeen(palette);
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const
{
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return theme::spacing::wide;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return theme::spacing::normal;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon ThemeStyle::standardIcon(StandardPixmap pixmap, const QStyleOption* option,
                               const QWidget* widget) const
{
    const QIcon icon = theme::icon(lineIconOf(pixmap));
    return icon.isNull() ? QProxyStyle::standardIcon(pixmap, option, widget) : icon;
}

QPixmap ThemeStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                                   const QWidget* widget) const
{
    const QIcon icon = theme::icon(lineIconOf(pixmap));
    if (icon.isNull()) {
        return QProxyStyle::standardPixmap(pixmap, option, widget);
    }
    const int edge = pixelMetric(PM_LargeIconSize, option, widget);
    return icon.pixmap(edge, edge);
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons: // the text of a button is sufficient
    case SH_ItemView_ActivateItemOnSingleClick:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QPalette ThemeStyle::standardPalette() const
{
    return theme::palette(theme::Scheme::Dark);
}
