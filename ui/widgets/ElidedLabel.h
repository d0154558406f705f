#pragma once

#include <QLabel>
#include <QString>

/// A label for one line of plain text, elided in the middle if there is not enough room. Its tool
/// tip shows the whole text, followed by its own tool tip if one is set; only the latter if the
/// label shows everything. Both are plain text. It never makes its window wider. User-interface
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
