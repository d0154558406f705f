#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class AboutDialog;
}

/// The about box: name and version of the product, and its web site. User-interface thread only.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);
    ~AboutDialog() override;

private:
    void enlargeHeading();
    void fillLinks();

    std::unique_ptr<Ui::AboutDialog> m_ui;
};
