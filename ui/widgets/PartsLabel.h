#pragma once

#include <QLabel>
#include <QString>

/// A label for plain text of several parts, such as "640 × 360 · JPEG 90", which breaks lines only
/// between the parts. A part that is too wide for a line, or text that needs more lines than fit,
/// breaks between all words, as in any label. text() is not changed. User-interface thread only.
class PartsLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PartsLabel(QWidget* parent = nullptr);

    /// What separates the parts, with a space at its end, behind which a line may break.
    void setSeparator(const QString& separator);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString textInUnbreakableParts() const;
    [[nodiscard]] bool fits(const QString& text) const;
    [[nodiscard]] int flags() const;

    QString m_separator;
};
