#pragma once

#include "arguments.h"
#include "component_state.h"
#include "console.h"
#include "tool_events.h"
#include "transformer_component.h"

#include <memory>
#include <optional>

// Ends a command: what went wrong has been written to standard error.
struct CommandFailed {
    int exitCode = ExitCode::kRefused;
};

// One record's field that an address means.
struct FieldTarget {
    const FieldDefinition *field = nullptr;
    RecordAddress record;
    QString address; // as the user wrote it
};

// The component as a command uses it: no settings, no journal, access level High.
class ToolSession {
  public:
    ToolSession(Console &console, const Arguments &arguments);
    ~ToolSession();

    [[nodiscard]] TransformerComponent &transformer() { return *mTransformer; }
    [[nodiscard]] ComponentState &state() { return mTransformer->state(); }
    [[nodiscard]] const Dictionary &dictionary() const { return mTransformer->dictionary(); }
    [[nodiscard]] Console &console() { return mConsole; }
    [[nodiscard]] ToolEvents &events() { return *mEvents; }
    [[nodiscard]] const Arguments &arguments() const { return mArguments; }
    [[nodiscard]] bool wantsJson() const { return mArguments.has(QStringLiteral("--json")); }

    // Opens the data file and selects the tier of --tier. A file that cannot be opened ends the command with 3.
    void open(const QString &fileName);
    // As open; takes squirt files too.
    void openForRadio(const QString &fileName);
    void selectTier();
    // To the file of -o, else to the given one.
    void save(const QString &fileName);
    // The file of -o. Raises UsageError where there is none.
    [[nodiscard]] QString requiredOutput() const;
    // Ends the command with text on standard error.
    [[noreturn]] void fail(int exitCode, const QString &text);

    // Raises UsageError for an unknown UIID or a missing record number, ends the command with 1 for a record that does
    // not exist.
    [[nodiscard]] FieldTarget target(const Address &address);
    // What UIID(N) or UIID(P.N) means in the structure; N alone counts over all parents. It need not exist.
    [[nodiscard]] RecordAddress recordOf(const RecordStructure &owner, const Address &address);
    // The structure of a guide. Raises UsageError.
    [[nodiscard]] const RecordStructure &structure(const QString &guide) const;
    // Makes the record's parent the current one, so that record numbers of the component count below it.
    void selectParent(StructureIndex structure, RecordAddress record);

  private:
    Console &mConsole;
    const Arguments &mArguments;
    std::unique_ptr<ToolEvents> mEvents;
    std::unique_ptr<TransformerComponent> mTransformer;
    std::optional<TierIndex> mFileTier; // current tier of the opened file
};
