#pragma once

#include <QWidget>

class ActionButton;
class ElidedLabel;
class QPushButton;

/// Shows the result of saving below the button: the name of the saved file with a link to its
/// folder, or a failure. Its place is reserved while it is empty. User-interface thread only.
class SavedNotice : public QWidget
{
    Q_OBJECT

public:
    explicit SavedNotice(QWidget* parent = nullptr);

    void tellSaved(const QString& text);
    /// @param cause  shown as a tool tip; may be empty
    void tellFailed(const QString& text, const QString& cause = {});
    /// Clears the text for another snapshot. The link to the folder stays.
    void clear();

    [[nodiscard]] QString text() const;
    [[nodiscard]] QPushButton& folderButton() const;

private:
    void tell(const QString& iconName, const QString& text, const QString& details = {});

    class Mark;
    Mark* m_mark;
    ElidedLabel* m_text;
    ActionButton* m_folderButton;
};
