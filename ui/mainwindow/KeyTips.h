#pragma once

#include <QAction>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

/// Tells in the tool tips of controls which keys do the same, as the actions say at that moment.
/// User-interface thread only.
class KeyTips : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The control does what the action does, which has the keys. Both may go before this.
    void add(QWidget& control, QAction& action);

    /// The tool tip of a control with its keys, such as "Play/Pause (Space or K)".
    [[nodiscard]] QString textFor(const QWidget& control) const;

    /// The keys of an action as people read them; empty for none.
    [[nodiscard]] static QString keysOf(const QAction& action);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QHash<const QObject*, QPointer<QAction>> m_actions;
};
