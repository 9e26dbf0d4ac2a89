#pragma once

#include <QDialog>
#include <QStringList>

// What the program is: title, version, access level, and the versions of what it is made of.
class frmAbout final : public QDialog {
    Q_OBJECT
  public:
    struct Facts {
        QString title;
        QString version;     // "Version 1.02.00"
        QString accessLevel; // "Access High"
        QStringList files;   // "name - version"
        QString closeText;
    };
    frmAbout(const Facts &facts, QWidget *parent);
};
