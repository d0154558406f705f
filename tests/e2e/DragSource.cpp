// A small window in the corner of the screen from which files can be dragged; it stands for the
// file manager in the end-to-end tests. Arguments: the files. It shows "taken" while the pointer is
// over a window that would accept them.

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

#include <iostream>
#include <utility>

class DragSource : public QLabel
{
    Q_OBJECT

public:
    explicit DragSource(QList<QUrl> files)
        : m_files(std::move(files))
    {
        // Bypasses the window manager, which would give it the focus and another place.
        setWindowFlags(Qt::Window | Qt::X11BypassWindowManagerHint);
        setWindowTitle(QStringLiteral("DragSource"));
        setGeometry(0, 0, 80, 80);
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        Q_UNUSED(event)
        auto* const content = new QMimeData;
        content->setUrls(m_files);
        auto* const drag = new QDrag(this);
        drag->setMimeData(content);
        connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
            if (action != Qt::IgnoreAction) {
                std::cout << "taken" << std::endl;
            }
        });
        drag->exec(Qt::CopyAction | Qt::MoveAction);
    }

private:
    QList<QUrl> m_files;
};

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    QList<QUrl> files;
    for (const QString& path : QApplication::arguments().mid(1)) {
        files.append(QUrl::fromLocalFile(path));
    }
    DragSource source(files);
    source.show();
    return QApplication::exec();
}

#include "DragSource.moc"
