#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

/// Draws a snapshot of the filmstrip: its small picture, below that the time and the profile, and a
/// tick in the corner of those that are saved. User-interface thread only.
class FilmstripDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FilmstripDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// The same for all items.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

private:
    void paintPicture(QPainter& painter, const QRect& area, const QModelIndex& index) const;
    void paintSavedMark(QPainter& painter, const QRect& picture, const QPalette& palette) const;

    const QIcon m_tick;
};
