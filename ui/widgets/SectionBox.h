#pragma once

#include <QGroupBox>

class QStyleOptionGroupBox;
class QStylePainter;

/// A group of a form separated by a heading and space instead of a frame. Otherwise, also for
/// screen readers, it is a group box. User-interface thread only.
class SectionBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit SectionBox(QWidget* parent = nullptr);
    explicit SectionBox(const QString& title, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont headingFont() const;
    void paintMirrored(QStylePainter& painter, const QStyleOptionGroupBox& option);
};
