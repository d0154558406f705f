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

    /// What stands between the parts of a text of which the first matter most: where there is no
    /// room, whole parts are missing at its end, and there are dots only in the last one left.
    void setSeparator(const QString& separator);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString elidedText() const;
    QString wholeToolTip() const;

    QString m_separator; ///< empty for a text of one part
};
