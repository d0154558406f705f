#pragma once

#include <QFrame>
#include <QImage>
#include <QPoint>
#include <QString>

class QLabel;

/// What lies at the pointer over the slider: a small picture and its time, in a little window above
/// it that takes neither keyboard nor mouse. User-interface thread only.
class SliderPreview : public QFrame
{
    Q_OBJECT

public:
    explicit SliderPreview(QWidget* parent);

    /// Shows it above a place on the screen.
    void showAt(const QPoint& place, const QString& text);
    /// The picture; null for none so far, in whose place there is room.
    void setPicture(const QImage& picture);

private:
    void stand();

    QLabel* m_picture;
    QLabel* m_text;
    QPoint m_place;
};
