#pragma once

#include <QPushButton>
#include <QStringList>
#include <QVector>

class QLabel;

/// What lies in the place of the video where none is open: a button that opens one, which says so
/// in its middle, with the videos that were opened last as buttons below. Behind a video it is
/// without all that. User-interface thread only.
class OpenVideoButton : public QPushButton
{
    Q_OBJECT

public:
    explicit OpenVideoButton(QWidget* parent = nullptr);

    /// Shows the text, and what to do, in its middle.
    void invite(const QString& text);
    /// Shows nothing of its own.
    void withdraw();

    /// Offers the files, by their names; of many, as many as there is room for.
    void setRecentFiles(const QStringList& paths);

Q_SIGNALS:
    /// One of the recent files was.
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
