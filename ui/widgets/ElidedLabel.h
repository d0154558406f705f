#pragma once

#include <QLabel>
#include <QString>

/// A label of one line of plain text that shows as much of it as there is room for, with dots in
/// the place of the middle. Its tool tip shows the whole text; one that was set for it comes below,
/// or alone where the label shows everything. It never makes its window wider. User-interface
/// thread only.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString elidedText() const;
    QString wholeToolTip() const;
};
