#pragma once

#include "ui/widgets/NewestTask.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <chrono>

class DropHighlight;
class QDragEnterEvent;
class QDropEvent;
class QProgressDialog;
class QWidget;

/// Takes files and folders that are dropped onto a window, and finds the videos in them. The window
/// is highlighted while they are over it.
///
/// Folders and more than one file are looked at in the background, with a dialog to cancel that
/// when it takes long. User-interface thread only.
class DropZone : public QObject
{
    Q_OBJECT

public:
    /// A search that takes no longer needs no dialog.
    static constexpr std::chrono::milliseconds usualPatience{500};

    /// Its drag events are to be handed on to this object, which it owns.
    explicit DropZone(QWidget& window, std::chrono::milliseconds patience = usualPatience);
    ~DropZone() override;

    void enter(QDragEnterEvent& event);
    void leave();
    void drop(QDropEvent& event);

    /// A drop is still being looked at.
    [[nodiscard]] bool isSearching() const { return m_isSearching; }

Q_SIGNALS:
    /// What was dropped, when the program that it comes from no longer waits: at least one.
    void dropped(const QStringList& videos);
    /// Nothing that could be opened was dropped.
    void nothingFound();

private:
    void search(const QStringList& paths);
    void cancel();
    void showProgress(int search);
    void hideProgress();
    Q_INVOKABLE void take(int search, const QStringList& videos);

    QWidget& m_window;
    const std::chrono::milliseconds m_patience;
    DropHighlight* const m_highlight;
    QPointer<QProgressDialog> m_progress; ///< while a search takes long
    bool m_isSearching = false;
    int m_search = 0;  ///< changes with each drop
    NewestTask m_task; ///< last: its thread calls for the others
};
