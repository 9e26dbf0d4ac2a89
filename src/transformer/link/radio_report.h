#pragma once

#include "radio_identity.h"

#include <QByteArray>
#include <QStringList>

#include <exception>
#include <optional>

// How far an operation got.
enum class LinkStage {
    OpeningPort,
    Identifying,
    Comparing,
    OpeningSession,
    Reading,
    StoringRestorePoint,
    Writing,
    ReadingBack,
    Committing,
    Confirming,
    Done,
};

// What went wrong. The details of each, in order, stand behind it.
enum class LinkFault {
    None,
    PortMissing,     // device
    NoRights,        // device, group, user
    PortBusy,        // device, the programs that hold it (may be empty)
    PortNotWorking,  // device
    NoAnswer,        // device
    Noise,           // device
    WrongTier,       // the radio's, the data's
    WrongBand,       // the radio's, the data's
    NewerDatabase,   // the radio's version level, the newest that is known
    OlderDatabase,   // the radio's version level, the data's
    WrongLayout,     // the radio's memory map, the known one
    Refused,         // the radio's error code
    NoRestorePoint,  // why it could not be stored
    ChecksumDiffers, // none
    CutOff,          // none
    Cancelled,       // none
    AlreadyRunning,  // none
};

// What an operation leaves in the radio. A read or an interrogation never changes anything.
enum class RadioOutcome {
    NothingSent,        // the radio's memory was not touched
    OldContent,         // some of the new content was sent, and the radio has its old content
    NewContentVerified, // committed, and confirmed by the radio's checksum
    LastAnswerLost,     // the radio has its old or the new content, whole; only the next contact can tell
};

// How an operation ended.
struct RadioReport {
    LinkFault fault = LinkFault::None;
    QStringList details;
    LinkStage stage = LinkStage::OpeningPort;
    RadioOutcome outcome = RadioOutcome::NothingSent;
    std::optional<RadioIdentity> identity; // as far as the radio has said who it is
    std::optional<quint32> checksum;       // CRC-32 of the radio's active content, where it was asked for
    QByteArray image;                      // a read: the active content

    [[nodiscard]] bool succeeded() const { return fault == LinkFault::None; }
};

// Ends an operation inside the link. Never leaves RadioLink.
struct LinkFailure : std::exception {
    LinkFailure(LinkFault failedBy, QStringList why = {}) : fault(failedBy), details(std::move(why)) {}
    [[nodiscard]] const char *what() const noexcept override { return "radio link"; }

    LinkFault fault;
    QStringList details;
};
