#include "ui/mainwindow/FolderSweeper.h"

#include "imaging/FilePublisher.h"

void FolderSweeper::sweep(const QString& folder)
{
    if (!m_swept.contains(folder)) {
        m_swept.insert(folder);
        m_thread.post([folder] { FilePublisher::sweep(folder); });
    }
}
