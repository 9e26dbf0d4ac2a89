#pragma once

#include "component_state.h"
#include "form_session.h"
#include "radio_link.h"
#include "radio_progress.h"
#include "run_records.h"
#include "tier_operations.h"

#include <functional>
#include <optional>

class SettingsStore;

// Interrogating, reading and programming a radio: the port, the progress window, the restore point, the run record, and
// what the user is told at the end.
class RadioOperations final : private RadioProgress, private ProgramContent {
  public:
    RadioOperations(ComponentState &state, const SettingsStore &settings, TierOperations &tiers, FormSession &forms);

    void InterrogateRadio();
    void ReadRadio(bool &result);
    void ProgramRadio();
    void AbortComms() { mLink.abort(); }
    // Names the radios whose last programming run has no known end.
    void tellOpenRuns();
    // How the last operation ended; nothing before the first.
    [[nodiscard]] const std::optional<RadioReport> &lastReport() const { return mLastReport; }

  private:
    void phaseStarted(RadioPhase phase, qint32 total) override;
    void advanced(qint32 increment, const QString &item, const QString &percentage) override;
    void identified(const RadioIdentity &identity) override;
    QString storeRestorePoint(const RadioIdentity &identity, const QByteArray &present) override;
    QByteArray imageOver(const RadioIdentity &identity, const QByteArray &present) override;
    QString runStarts(const RadioIdentity &identity, quint32 oldContent, quint32 newContent) override;

    // Runs one operation with a trace; raises the end of the progress, then says how it ended.
    RadioReport run(const std::function<RadioReport(const QString &device)> &operation, bool staysOpen);
    [[nodiscard]] QString portNumber() const;
    void tellNoRadio(const QString &prompt, const QString &parameter);
    [[nodiscard]] QString nameOf(const RadioIdentity &identity) const;
    void tellContact(const QString &action, const RadioIdentity &identity);
    void tellFailure(const RadioReport &report);
    [[nodiscard]] QStringList olderDatabaseAdvice(const RadioReport &report) const;
    void settleOpenRun(const RadioReport &report);
    void tellOpenRunEnd(const RunRecord &open, quint32 checksum);
    void settleOwnRun(const RadioReport &report);
    void takeOver(TierData &&data);
    [[nodiscard]] RadioCompatibility::Data presentData() const;
    [[nodiscard]] bool mayReplaceData();

    ComponentState &mState;
    const SettingsStore &mSettings;
    TierOperations &mTiers;
    FormSession &mForms;
    RadioCompatibility mCompatibility;
    RadioLink mLink;
    RunRecords mRuns;
    std::optional<RadioReport> mLastReport;
    std::optional<QString> mOwnRun; // serial number of the radio whose run record this run has written
};
