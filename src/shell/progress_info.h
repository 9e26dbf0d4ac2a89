#pragma once

#include "interrogation_type.h"
#include "no_radio_events.h"
#include "process_values.h"
#include "progress_events.h"

#include <QDialog>

class ErrorReport;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;
class Translation;

// The modal window of one radio operation: starts it once it is shown, and shows its phases, the radio's details and
// how it ended. Programming cannot be cancelled.
class frmProgressInfo final : public QDialog, public ProgressEvents, public NoRadioEvents {
    Q_OBJECT
  public:
    // portName names the port in the window, for example "COM1: Simulated radio".
    frmProgressInfo(ProcessValues &process, const Translation &translation, ErrorReport &errors, InterrogationType type,
                    const QString &portName, QWidget *owner);
    ~frmProgressInfo() override;
    Q_DISABLE_COPY_MOVE(frmProgressInfo)

    // Escape and the frame's close box: as cmdCancel where that is enabled, refused while it is disabled and the
    // operation runs, else as cmdOK.
    void reject() override;

    // A read: whether the radio's data were taken. False before the end.
    [[nodiscard]] bool Result() const { return mResult; }
    // A radio has told what it is.
    [[nodiscard]] bool RadioAnswered() const { return mRadioAnswered; }
    // Why no radio could be reached, translated; "" otherwise. The caller is to tell it.
    [[nodiscard]] const QString &NoRadio() const { return mNoRadio; }

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    void mobjTransformerEvents_ProgressBarStart(qint32 Total, const QString &strProgressTitle) override;
    void mobjTransformerEvents_ProgressPing(qint32 lngIncrement, const QString &strItemName,
                                            const QString &strItemPercentage) override;
    void mobjTransformerEvents_ProgressBarEnd(bool blnForceClose) override;
    void mobjTransformerEvents_RadioInfo(const QString &strRadioModel, const QString &strSWVersion,
                                         const QString &strDBVersion, const QString &strHardwareRev,
                                         const QString &strProductCode) override;
    void mobjTransformerEvents_NoRadio(const QString &Prompt, const QString &strParameters) override;
    QLayout *detailRows(const QString &portName);
    QLayout *phaseRows();
    QLayout *buttonRow();
    void Form_Activate();
    void runOperation();
    void ProgressBarStart(qint32 Max, const QString &Title);
    void ProgressPing(qint32 Increment, const QString &ItemName, const QString &Percentage);
    void ProgressBarEnd(bool Result);
    void RadioInfo(const QString &Tier, const QString &SWVersion, const QString &DBVersion, const QString &HardwareRev,
                   const QString &ProductCode);
    void cmdOK_Click();
    void cmdCancel_Click();

    ProcessValues &mProcess;
    const Translation &mTranslation;
    ErrorReport &mErrors;
    InterrogationType mType;
    QString mCaption;        // untranslated caption of the present phase
    bool mBusy = false;      // the operation runs
    bool mPhaseRuns = false; // between ProgressBarStart and ProgressBarEnd
    bool mStarted = false;
    bool mResult = false;
    bool mRadioAnswered = false;
    QString mNoRadio;

    QLabel *lblItemName;
    QLabel *lblPercentage;
    QProgressBar *ProgressBar1;
    QLabel *lblRadioTier;
    QLabel *lblSWVersion;
    QLabel *lblDBVersion;
    QLabel *lblHardwareRev;
    QLabel *lblProductCode;
    QLabel *lblNoCancel;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
};
