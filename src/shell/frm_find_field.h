#pragma once

#include "find_field_search.h"

#include <QDialog>

#include <functional>

class ErrorReport;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

// The tool window that finds a field on any form and opens it.
class frmFindField final : public QDialog {
    Q_OBJECT
  public:
    struct Services {
        std::function<QStringList(const QString &)> search;
        std::function<void(const FindFieldHit &)> open;
        std::function<QString(const QString &)> translate;
        ErrorReport &errors;
    };
    frmFindField(Services services, QWidget *parent);

    // With the whole search text marked.
    void ShowAgain();
    void cmdFindLabel_Click();
    void lstOutput_Click() { lstOutput_DblClick(); }
    // Opens the current line's form at its field; nothing for "Not Found".
    void lstOutput_DblClick();

  protected:
    void changeEvent(QEvent *event) override;

  private:
    void setTexts();

    Services mServices;
    ErrorReport &mErrors;
    QLineEdit *mTxtSearch;
    QPushButton *mCmdFindLabel;
    QListWidget *mLstOutput;
};
