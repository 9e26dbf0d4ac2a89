#pragma once

#include "modal_pilot.h"
#include "tour_dialogs.h"
#include "tour_report.h"

#include <functional>
#include <memory>

class MainProgram;
class ProgramHands;
class RadioProcess;

// The road through the program: find the radio, read it, open the demonstration fleet, look at all forms, edit fields
// and cells, paste, be refused, save, open again, program, verify, and read into a program that starts afresh. Each
// step fails by an exception.
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
    void findTheRadio();
    void read();
    void openTheFleet();
    void lookAtForms();
    void edit();
    void beRefused();
    void editCell();
    void paste();
    void lookAtAnotherTier();
    void seePreferences();
    void lookInTheDark();
    void save();
    void openAgain();
    void program();
    void verifyRadio();
    void leave();
    void readIntoFreshStart();

    void picture(const QString &what);
    // An action that must meet no message.
    void quietly(const QString &pictureName, const std::function<void()> &action);
    void beRefusedBy(const QString &pictureName, const std::function<void()> &action);
    void trigger(const QString &command, const QString &pictureName);
    void expect(const QString &uiid, const QString &wanted, qint32 record = 0) const;

    ProgramMaker mMakeProgram;
    std::unique_ptr<MainProgram> mProgram;
    std::unique_ptr<ProgramHands> mHands;
    const RadioProcess &mRadio;
    TourDialogs &mDialogs;
    TourReport &mReport;
    ModalPilot mPilot;
    QString mSerialNumber;
    QString mFileName;
};
