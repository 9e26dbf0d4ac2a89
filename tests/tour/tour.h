#pragma once

#include "modal_pilot.h"
#include "tour_dialogs.h"
#include "tour_report.h"

class frmMain;
class MainProgram;
class QLineEdit;
class QWidget;
class RadioProcess;
class Transformer;

// The road through the program: interrogate, read, edit, be refused, save, open again, program, verify. Each step
// fails by an exception.
class Tour {
  public:
    Tour(MainProgram &program, const RadioProcess &radio, TourDialogs &dialogs, TourReport &report,
         QString serialNumber);
    void walk();

  private:
    void start();
    void interrogate();
    void read();
    void edit();
    void beRefused();
    void save();
    void openAgain();
    void program();
    void verifyRadio();
    void lookAtForms();
    void leave();

    void trigger(const QString &action, const QString &picture);
    void openForm(const QString &caption);
    void typeOver(QLineEdit &editor, const QString &text);
    void picture(const QString &what);
    [[nodiscard]] QLineEdit &editorOf(const QString &uiid) const;
    [[nodiscard]] QString value(const QString &uiid) const;

    MainProgram &mProgram;
    const RadioProcess &mRadio;
    TourDialogs &mDialogs;
    TourReport &mReport;
    ModalPilot mPilot;
    QString mSerialNumber;
    QString mFileName;
};
