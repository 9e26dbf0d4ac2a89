#pragma once

#include <QString>

// What a radio operation tells the progress window, from inside InterrogateRadio, ReadRadio or ProgramRadio. The
// component lets pending window events run between two of them, so that the cancel button works.
class ProgressEvents {
  public:
    virtual ~ProgressEvents() = default;

    // A phase starts. Total 0 or less: no bar. strProgressTitle: "Radio Interrogation", "Reading Radio" or
    // "Programming Radio".
    virtual void mobjTransformerEvents_ProgressBarStart(qint32 Total, const QString &strProgressTitle) = 0;
    // An empty text leaves its label as it is.
    virtual void mobjTransformerEvents_ProgressPing(qint32 lngIncrement, const QString &strItemName,
                                                    const QString &strItemPercentage) = 0;
    // The operation has ended; blnForceClose true hides the window also after an interrogation.
    virtual void mobjTransformerEvents_ProgressBarEnd(bool blnForceClose) = 0;
    // strRadioModel carries tier, band and serial number.
    virtual void mobjTransformerEvents_RadioInfo(const QString &strRadioModel, const QString &strSWVersion,
                                                 const QString &strDBVersion, const QString &strHardwareRev,
                                                 const QString &strProductCode) = 0;
};
