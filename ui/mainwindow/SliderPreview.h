#pragma once

#include <QFrame>
#include <QImage>
#include <QPoint>
#include <QString>

class QLabel;

/// A preview of the position under the pointer: a small picture and its time, in a popup above the
/// slider that takes neither focus nor mouse events. User-interface thread only.
class SliderPreview : public QFrame
{
    Q_OBJECT

public:
    explicit SliderPreview(QWidget* parent);

    /// Shows the popup above a place on the screen.
    void showAt(const QPoint& place, const QString& text);
    /// Sets the picture; null leaves its place empty.
    void setPicture(const QImage& picture);

private:
    void stand();

    QLabel* m_picture;
    QLabel* m_text;
    QPoint m_place;
};
