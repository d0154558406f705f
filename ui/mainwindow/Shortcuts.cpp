#include "ui/mainwindow/Shortcuts.h"

#include "ui/mainwindow/KeyTips.h"
#include "ui/mainwindow/Mnemonics.h"
#include "ui/widgets/DialogSize.h"

#include <QAction>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMenu>
#include <QMenuBar>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <QWidget>

#include <array>

namespace {

QString translatedKeys(const char* text)
{
    return QCoreApplication::translate("Shortcuts", text);
}

struct Keys
{
    const char* action;
    QList<QKeySequence> keys; ///< menus show the first one
};

/// Actions with a single key have it in the form.
QList<Keys> severalKeys()
{
    const auto shift = [](int key) { return QKeySequence(int(Qt::SHIFT) + key); };
    const auto ctrl = [](int key) { return QKeySequence(int(Qt::CTRL) + key); };
    return {
        {"actionPlayPause", {QKeySequence(Qt::Key_Space), QKeySequence(Qt::Key_K)}},
        {"actionStepForward", {QKeySequence(Qt::Key_Right), QKeySequence(Qt::Key_Period)}},
        {"actionStepBackward", {QKeySequence(Qt::Key_Left), QKeySequence(Qt::Key_Comma)}},
        {"actionSkipForward", {ctrl(Qt::Key_Up), shift(Qt::Key_Right)}},
        {"actionSkipBackward", {ctrl(Qt::Key_Down), shift(Qt::Key_Left)}},
        {"actionTake_Snapshot", {ctrl(Qt::Key_A), QKeySequence(Qt::Key_S)}},
    };
}

void collect(const QList<QAction*>& actions, QVector<Shortcuts::Section::Entry>& entries)
{
    for (const QAction* const action : actions) {
        if (action->menu() != nullptr) {
            collect(action->menu()->actions(), entries);
        } else if (!action->shortcut().isEmpty()) {
            entries.append({Mnemonics::plain(action->text()), KeyTips::keysOf(*action)});
        }
    }
}

QString rowOf(const QString& keys, const QString& text)
{
    return QStringLiteral("<tr><td style='padding:2px 24px 2px 0'><b>%1</b></td>"
                          "<td style='padding:2px 0'>%2</td></tr>")
        .arg(keys.toHtmlEscaped(), text.toHtmlEscaped());
}

QString titleRow(const QString& title)
{
    return QStringLiteral("<tr><td colspan='2'><h3>%1</h3></td></tr>").arg(title.toHtmlEscaped());
}

QString mouseRows()
{
    const std::array<std::array<const char*, 2>, 7> ways{{
        {QT_TRANSLATE_NOOP("Shortcuts", "Click on the slider"),
         QT_TRANSLATE_NOOP("Shortcuts", "Go there")},
        {QT_TRANSLATE_NOOP("Shortcuts", "Shift and drag on the slider"),
         QT_TRANSLATE_NOOP("Shortcuts", "Go frame by frame")},
        {QT_TRANSLATE_NOOP("Shortcuts", "Wheel over the slider"),
         QT_TRANSLATE_NOOP("Shortcuts", "Go frame by frame")},
        {QT_TRANSLATE_NOOP("Shortcuts", "Click on the time"),
         QT_TRANSLATE_NOOP("Shortcuts", "Type another one: 1:02:03.5, +10s, -2s, f1234 or 75%")},
        {QT_TRANSLATE_NOOP("Shortcuts", "Wheel over the picture"),
         QT_TRANSLATE_NOOP("Shortcuts", "Zoom at the pointer")},
        {QT_TRANSLATE_NOOP("Shortcuts", "Drag the zoomed picture"),
         QT_TRANSLATE_NOOP("Shortcuts", "Show another part of it")},
        {QT_TRANSLATE_NOOP("Shortcuts", "Double click on the picture"),
         QT_TRANSLATE_NOOP("Shortcuts", "Actual size, or fitted again")},
    }};
    QString rows;
    for (const auto& way : ways) {
        rows += rowOf(translatedKeys(way[0]), translatedKeys(way[1]));
    }
    return rows;
}

} // namespace

void Shortcuts::giveTo(QWidget& window, const QMenuBar& bar)
{
    const QList<Keys> table = severalKeys();
    for (const Keys& keys : table) {
        window.findChild<QAction*>(QLatin1String(keys.action))->setShortcuts(keys.keys);
    }
    // Otherwise the keys of actions in a hidden menu bar would not work.
    const auto menus = bar.findChildren<QMenu*>();
    for (const QMenu* const menu : menus) {
        window.addActions(menu->actions());
    }
}

QVector<Shortcuts::Section> Shortcuts::sectionsOf(const QMenuBar& bar)
{
    QVector<Section> sections;
    const QList<QAction*> menus = bar.actions();
    for (const QAction* const menu : menus) {
        Section section{Mnemonics::plain(menu->text()), {}};
        if (menu->menu() != nullptr) {
            collect(menu->menu()->actions(), section.entries);
        }
        if (!section.entries.isEmpty()) {
            sections.append(section);
        }
    }
    return sections;
}

QString Shortcuts::pageOf(const QVector<Section>& sections)
{
    QString rows;
    for (const Section& section : sections) {
        rows += titleRow(section.title);
        for (const Section::Entry& entry : section.entries) {
            rows += rowOf(entry.keys, entry.text);
        }
    }
    rows += titleRow(translatedKeys(QT_TRANSLATE_NOOP("Shortcuts", "Mouse"))) + mouseRows();
    return QStringLiteral("<table>%1</table>").arg(rows);
}

void Shortcuts::showPage(QWidget& window, const QMenuBar& bar)
{
    QDialog dialog(&window);
    dialog.setObjectName(QStringLiteral("shortcutsDialog"));
    dialog.setWindowTitle(translatedKeys(QT_TRANSLATE_NOOP("Shortcuts", "Keyboard Shortcuts")));
    auto* const text = new QTextBrowser(&dialog);
    text->setObjectName(QStringLiteral("shortcutsText"));
    text->setAccessibleName(dialog.windowTitle());
    text->setHtml(pageOf(sectionsOf(bar)));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* const layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    DialogSize::open(dialog, {80, 34});
    dialog.exec();
}
