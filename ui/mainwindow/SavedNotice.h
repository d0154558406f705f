#pragma once

#include <QWidget>

class ActionButton;
class ElidedLabel;
class QPushButton;

/// Says, below the button that saves, what became of it: the name of the file that was saved, with
/// a way to its folder, or that it could not be saved. Its place is kept while it says nothing.
/// User-interface thread only.
class SavedNotice : public QWidget
{
    Q_OBJECT

public:
    explicit SavedNotice(QWidget* parent = nullptr);

    void tellSaved(const QString& text);
    /// @param cause  shown as a tool tip; may be empty
    void tellFailed(const QString& text, const QString& cause = {});
    /// Another snapshot is there. The way to the folder stays.
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
