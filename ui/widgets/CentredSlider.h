#pragma once

#include <QSlider>

/// A horizontal slider for values on both sides of a neutral one: it is filled from there to its
/// handle, has a mark there, and a double click resets it.
///
/// User-interface thread only.
class CentredSlider : public QSlider
{
    Q_OBJECT
    /// The neutral value; 0 by default.
    Q_PROPERTY(int neutral READ neutral WRITE setNeutral)

public:
    explicit CentredSlider(QWidget* parent = nullptr);

    int neutral() const { return m_neutral; }
    void setNeutral(int value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] int centreOfHandleAt(int value) const;

    int m_neutral = 0;
};
