#pragma once

#include "ui/widgets/DiskTask.h"
#include "utils/CallQueue.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <chrono>

class DropHighlight;
class QDragEnterEvent;
class QDropEvent;
class QProgressDialog;
class QWidget;

/// Accepts files and folders that are dropped onto a window, and finds the videos in them. The
/// window is highlighted during the drag.
///
/// Folders and multiple files are examined in the background, with a dialog for cancelling if that
/// takes long. User-interface thread only.
class DropZone : public QObject
{
    Q_OBJECT

public:
    /// A search that takes no longer needs no dialog.
    static constexpr std::chrono::milliseconds usualPatience{500};

    /// The window must forward its drag events to this object, which it owns.
    explicit DropZone(QWidget& window, std::chrono::milliseconds patience = usualPatience);
    ~DropZone() override;

    void enter(QDragEnterEvent& event);
    void leave();
    void drop(QDropEvent& event);

    /// True while a drop is being examined.
    [[nodiscard]] bool isSearching() const { return m_isSearching; }

Q_SIGNALS:
    /// At least one video was dropped. Emitted after the source program has stopped waiting.
    void dropped(const QStringList& videos);
    /// The drop contained nothing that could be opened.
    void nothingFound();

private:
    void search(const QStringList& paths);
    void cancel();
    void showProgress(int search);
    void hideProgress();
    void take(int search, const QStringList& videos);

    QWidget& m_window;
    const std::chrono::milliseconds m_patience;
    DropHighlight* const m_highlight;
    QPointer<QProgressDialog> m_progress; ///< exists while a search takes long
    bool m_isSearching = false;
    int m_search = 0; ///< changes with each drop
    CallQueue m_answers{this};
    DiskTask m_task; ///< last, since its thread calls the other members
};
