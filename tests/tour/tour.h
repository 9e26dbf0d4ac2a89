#pragma once

#include "modal_pilot.h"
#include "tour_dialogs.h"
#include "tour_report.h"

#include <functional>
#include <memory>

class frmMain;
class MainProgram;
class QLineEdit;
class QWidget;
class RadioProcess;
class Transformer;

// The road through the program: interrogate, read, edit, be refused, save, open again, program, verify, and read into a
// program that starts afresh. Each step fails by an exception.
class Tour {
  public:
    using ProgramMaker = std::function<std::unique_ptr<MainProgram>()>;

    Tour(ProgramMaker makeProgram, const RadioProcess &radio, TourDialogs &dialogs, TourReport &report,
         QString serialNumber);
    ~Tour();
    Q_DISABLE_COPY_MOVE(Tour)
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
    void readIntoFreshStart();

    void trigger(const QString &action, const QString &picture);
    void openForm(const QString &caption);
    void typeOver(QLineEdit &editor, const QString &text);
    void picture(const QString &what);
    [[nodiscard]] QLineEdit &editorOf(const QString &uiid) const;
    [[nodiscard]] QString value(const QString &uiid) const;

    ProgramMaker mMakeProgram;
    std::unique_ptr<MainProgram> mProgram;
    const RadioProcess &mRadio;
    TourDialogs &mDialogs;
    TourReport &mReport;
    ModalPilot mPilot;
    QString mSerialNumber;
    QString mFileName;
};
