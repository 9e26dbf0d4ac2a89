#pragma once

#include "component_state.h"

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <map>
#include <optional>

// The lists of the form tree, as TransformerEvents_ChangeToTier carries them.
struct FormTreeLists {
    QStringList forms;
    QStringList captions;
    QHash<QString, QVariant> accessLevels; // by caption
    QHash<QString, QVariant> networks;     // by caption
    QStringList types;
};

// Tiers, and the form tree of the current one.
class TierOperations {
  public:
    explicit TierOperations(ComponentState &state) : mState(state) {}

    [[nodiscard]] QString InitialiseDatabase() const;
    void ChangeTier(const QString &tierKey);
    // Raises the event for the current tier, and tells which forms are available unless a listener asks itself.
    void raiseChangeToTier();
    [[nodiscard]] FormTreeLists lists() const;
    [[nodiscard]] bool GetTreeNodeHasData(const QString &nodeKey) const;
    void RefreshFormList();
    // After anything that changes values: raises the event only for forms that have become available or unavailable.
    void tellChangedForms();
    [[nodiscard]] bool GetFormAvailable(const QString &formKey) const;

    // Tree text and index of the form that counts as current, kept for each tier.
    [[nodiscard]] QString GetCurrentFormName() { return mForms[mState.tier()].name; }
    void SetCurrentFormName(const QString &name) { mForms[mState.tier()].name = name; }
    [[nodiscard]] qint32 GetCurrentFormTreeNode() { return mForms[mState.tier()].node; }
    void SetCurrentFormTreeNode(qint32 node) { mForms[mState.tier()].node = node; }

  private:
    struct CurrentForm {
        QString name;
        qint32 node = 0;
    };
    [[nodiscard]] qint32 lowestAccess(const TreeEntry &entry) const;
    // What decides which forms of the tree are available.
    struct Availability {
        bool toneForms = false;    // a network has tone signalling
        bool selcallForms = false; // there is a selcall system
        bool operator==(const Availability &) const = default;
        [[nodiscard]] bool of(const QString &form) const;
    };
    [[nodiscard]] Availability availability() const;
    void tellForm(const TreeEntry &entry, const Availability &availability);

    ComponentState &mState;
    std::map<TierIndex, CurrentForm> mForms;
    std::optional<Availability> mTold; // nothing since the tree was last exchanged
};
