#pragma once

#include <QAction>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

/// Adds the current keyboard shortcuts of actions to the tool tips of their controls.
/// User-interface thread only.
class KeyTips : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Associates a control with the action that has its keys. Both may be deleted before this
    /// object.
    void add(QWidget& control, QAction& action);

    /// The tool tip of a control with its keys, such as "Play/Pause (Space or K)".
    [[nodiscard]] QString textFor(const QWidget& control) const;

    /// The keys of an action in readable form; empty for none.
    [[nodiscard]] static QString keysOf(const QAction& action);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QHash<const QObject*, QPointer<QAction>> m_actions;
};
