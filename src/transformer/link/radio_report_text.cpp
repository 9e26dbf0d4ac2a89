#include "radio_report_text.h"

#include "radio_progress.h"
#include "translation.h"
#include "wire_messages.h"

#include <array>

namespace {
template <class Key>
struct Sentence {
    Key key;
    const char *text;
};

template <class Key>
Sentence(Key, const char *) -> Sentence<Key>;

constexpr std::array kFaults{
    Sentence{LinkFault::PortMissing, "The port %0:S does not exist. Check that the programming cable is plugged in, "
                                     "and the port number in the options."},
    Sentence{LinkFault::NoRights,
             "You may not open the port %0:S. It belongs to the group %1:S. Let an administrator run "
             "\"sudo adduser %2:S %1:S\", then log out and in again."},
    Sentence{LinkFault::PortBusy,
             "The port %0:S is in use by another program: %1:S. Close it and try again. If it is ModemManager, wait "
             "half a minute after plugging the cable in; it then lets go of the port."},
    Sentence{LinkFault::PortNotWorking, "The port %0:S does not work as a serial port. Choose another port in the "
                                        "options."},
    Sentence{LinkFault::NoAnswer, "The radio on %0:S does not answer. Check that it is switched on and that the cable "
                                  "is connected at both ends, then the port number in the options."},
    Sentence{LinkFault::Noise, "What arrives from the radio is not readable: noise on the line, or a device of another "
                               "speed. Check the cable and its plugs, and that a KX4600 is connected."},
    Sentence{LinkFault::WrongTier, "The radio is of another model. Radio: %0:S. Data: %1:S."},
    Sentence{LinkFault::WrongBand, "The radio is of another band. Radio: %0:S. Data: %1:S."},
    Sentence{LinkFault::NewerDatabase, "The radio's database version is newer than this program knows. Radio: %0:S. "
                                       "This program: up to %1:S. Update this program."},
    Sentence{LinkFault::OlderDatabase, "The data needs a newer database version than the radio has. Radio: %0:S. "
                                       "Data: %1:S."},
    Sentence{LinkFault::WrongLayout, "The radio's memory map is not known to this program. Radio: %0:S. Known: %1:S."},
    Sentence{LinkFault::Refused, "The radio refused a command: %0:S."},
    Sentence{LinkFault::NoRestorePoint, "The radio's present content could not be kept as a restore point: %0:S"},
    Sentence{LinkFault::ChecksumDiffers, "The checksum of the moved data is not right. Check the cable and try again."},
    Sentence{LinkFault::CutOff, "The connection to the radio broke off. Check the cable and the radio's supply, then "
                                "try again."},
    Sentence{LinkFault::Cancelled, "Cancelled."},
    Sentence{LinkFault::AlreadyRunning, "A radio operation is already running."},
};

constexpr std::array kStages{
    Sentence{LinkStage::Identifying, "It happened at the first contact with the radio."},
    Sentence{LinkStage::Comparing, "It happened when the radio was compared with the data."},
    Sentence{LinkStage::OpeningSession, "It happened when the session with the radio was opened."},
    Sentence{LinkStage::Reading, "It happened while the radio was read."},
    Sentence{LinkStage::StoringRestorePoint, "It happened before anything was written to the radio."},
    Sentence{LinkStage::Writing, "It happened while data was written to the radio."},
    Sentence{LinkStage::ReadingBack, "It happened while the written data was compared."},
    Sentence{LinkStage::Committing, "It happened when the radio was told to use the new data."},
    Sentence{LinkStage::Confirming, "It happened while the radio confirmed the new data."},
};

constexpr std::array kOutcomes{
    Sentence{RadioOutcome::NothingSent, "Nothing was sent to the radio."},
    Sentence{RadioOutcome::OldContent, "The radio has its old content."},
    Sentence{RadioOutcome::NewContentVerified, "The radio has the new content, verified."},
    Sentence{RadioOutcome::LastAnswerLost, "The answer to the last step was lost, so the radio holds either its old or "
                                           "the new content, whole. Connect it again."},
};

constexpr std::array kRefusals{
    Sentence{int(Wire::ErrorCode::UnknownCommand), "its software does not have it"},
    Sentence{int(Wire::ErrorCode::BadPayload), "wrong content"},
    Sentence{int(Wire::ErrorCode::NoSession), "its session has ended, perhaps it was switched off"},
    Sentence{int(Wire::ErrorCode::OutOfRange), "outside its memory"},
    Sentence{int(Wire::ErrorCode::WrongProtocol), "it speaks another version of the protocol"},
    Sentence{int(Wire::ErrorCode::SpeedRefused), "it cannot work at this speed"},
    Sentence{int(Wire::ErrorCode::ChecksumDiffers), "the checksum differs"},
    Sentence{int(Wire::ErrorCode::WriteFailed), "its memory could not be written"},
};

constexpr std::array kPhases{
    Sentence{RadioPhase::Interrogation, "Radio Interrogation"},
    Sentence{RadioPhase::Reading, "Reading Radio"},
    Sentence{RadioPhase::Programming, "Programming Radio"},
};

template <class Table, class Key>
QString textOf(const Table &table, Key key) {
    for (const auto &sentence : table)
        if (sentence.key == key)
            return QString::fromLatin1(sentence.text);
    return {};
}
} // namespace

QString RadioPhases::title(RadioPhase phase) { return textOf(kPhases, phase); }

QString RadioText::filled() const { return Translation::Fill(prompt, parameters); }

RadioText RadioReportText::fault(const RadioReport &report) {
    RadioText text{textOf(kFaults, report.fault), report.details};
    if (report.fault == LinkFault::Refused)
        text.parameters = {refusal(report.details.value(0).toInt())};
    const bool unknownHolder = report.fault == LinkFault::PortBusy && report.details.value(1).isEmpty();
    if (unknownHolder)
        text.parameters = {report.details.value(0), QStringLiteral("one that this user may not see")};
    return text;
}

QString RadioReportText::stage(LinkStage stage) { return textOf(kStages, stage); }

QString RadioReportText::outcome(RadioOutcome outcome) { return textOf(kOutcomes, outcome); }

QString RadioReportText::refusal(int errorCode) {
    const QString words = textOf(kRefusals, errorCode);
    return words.isEmpty() ? QStringLiteral("error %1").arg(errorCode) : words;
}
