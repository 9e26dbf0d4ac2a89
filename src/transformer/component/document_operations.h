#pragma once

#include "component_state.h"
#include "tier_operations.h"

// Data files, versions and defaults.
class DocumentOperations {
  public:
    DocumentOperations(ComponentState &state, TierOperations &tiers) : mState(state), mTiers(tiers) {}

    void ReadFile(const QString &fileName);
    void SaveFile(const QString &fileName, const QString &comment, qint32 version, bool &result);
    // The header; nothing for what is no data file.
    [[nodiscard]] std::optional<DataFileHeader> GetFileDetails(const QString &fileName) const;
    void ReloadDefaults(const QString &tierKey);
    void ResetDatabase();

    [[nodiscard]] QStringList GetFileVersionList() const;
    [[nodiscard]] QString GetFileVersionName() const;
    [[nodiscard]] QString GetFileVersionByIndex(qint32 index) const;

    // Takes over a whole document, as after Open. Raises TransformerEvents_ChangeToTier.
    void takeOver(DataDocument &&document, const std::set<TierIndex> &dirty);

  private:
    void tellFile(const QString &action, const QString &path);
    [[nodiscard]] bool mayReplace(const QString &fileName);
    [[nodiscard]] bool mayOverwrite(const QString &path);
    [[nodiscard]] QString versionEntry(qint32 index) const;
    [[nodiscard]] DataDocument atLevel(qint32 level) const;
    void write(const DataDocument &document, const QString &path, const QString &comment);

    ComponentState &mState;
    TierOperations &mTiers;
};
