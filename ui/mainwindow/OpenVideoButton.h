#pragma once

#include <QPushButton>
#include <QStringList>
#include <QVector>

class QLabel;

/// Fills the place of the video while none is open: a button that opens one, labelled in its
/// middle, with the recent videos as buttons below. Behind a video it shows nothing. User-interface
/// thread only.
class OpenVideoButton : public QPushButton
{
    Q_OBJECT

public:
    explicit OpenVideoButton(QWidget* parent = nullptr);

    /// Shows a text and instructions in its middle.
    void invite(const QString& text);
    /// Shows nothing.
    void withdraw();

    /// Offers the files by name; as many as there is room for.
    void setRecentFiles(const QStringList& paths);

Q_SIGNALS:
    /// One of the recent files was chosen.
    void fileChosen(const QString& path);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QPushButton* makeEntry(const QString& path);
    void showEntriesWithRoom();
    void showPicture();

    QWidget* m_invitation;
    QLabel* m_picture;
    QLabel* m_text;
    QLabel* m_hint;
    QLabel* m_recentLabel;
    QWidget* m_list;
    QVector<QPushButton*> m_entries;
};
