#include "radio_operations.h"

#include "data_file_writer.h"
#include "file_problem.h"
#include "image_decoder.h"
#include "image_encoder.h"
#include "no_radio_events.h"
#include "older_version.h"
#include "radio_report_text.h"
#include "restore_points.h"
#include "serial_line.h"
#include "serial_ports.h"
#include "settings_store.h"
#include "translation.h"
#include "value_text.h"
#include "wire_trace.h"

#include <QCoreApplication>
#include <QTime>

namespace {
const QString kBand = QStringLiteral("Band_q7r");
const QString kLineBreak = QStringLiteral("\n");
} // namespace

RadioOperations::RadioOperations(ComponentState &state, const SettingsStore &settings, TierOperations &tiers,
                                 FormSession &forms)
    : mState(state), mSettings(settings), mTiers(tiers), mForms(forms), mCompatibility(state.dictionary),
      mLink(std::make_unique<SerialLine>(), mCompatibility), mRuns(state.places.stateFolder) {
    mLink.setProgress(this);
}

QString RadioOperations::portNumber() const {
    return ValueText::of(mSettings.value(QStringLiteral("CommPortNumber"), QStringLiteral("1")));
}

RadioReport RadioOperations::run(const std::function<RadioReport(const QString &)> &operation, bool staysOpen) {
    RadioReport report;
    report.fault = LinkFault::PortMissing;
    const std::optional<QString> port = SerialPorts().DeviceOf(portNumber());
    if (port) {
        const std::unique_ptr<WireTrace> trace =
            mState.places.stateFolder.isEmpty() ? nullptr : std::make_unique<WireTrace>(mState.places.stateFolder);
        mLink.setTap(trace.get());
        report = operation(*port);
        mLink.setTap(nullptr);
    }
    mLastReport = report;
    const bool forceClose = !staysOpen || !report.succeeded();
    mState.events.raiseProgress(
        [forceClose](ProgressEvents &listener) { listener.mobjTransformerEvents_ProgressBarEnd(forceClose); });
    if (!port)
        tellNoRadio(QStringLiteral("There is no serial port with the number %0:S. Choose another in the preferences."),
                    portNumber());
    else if (!report.succeeded())
        tellFailure(report);
    return report;
}

// Left to a progress listener that can offer other ports.
void RadioOperations::tellNoRadio(const QString &prompt, const QString &parameter) {
    bool told = false;
    mState.events.raiseProgress([&](ProgressEvents &listener) {
        if (auto *offering = dynamic_cast<NoRadioEvents *>(&listener)) {
            offering->mobjTransformerEvents_NoRadio(prompt, parameter);
            told = true;
        }
    });
    if (!told)
        mState.events.tellError(prompt, {parameter});
}

void RadioOperations::tellFailure(const RadioReport &report) {
    const RadioText fault = RadioReportText::fault(report);
    QStringList sentences = {Translation::Piece(fault.prompt, fault.parameters)};
    if (report.fault == LinkFault::OlderDatabase)
        sentences += olderDatabaseAdvice(report);
    sentences += {RadioReportText::stage(report.stage), RadioReportText::outcome(report.outcome)};
    sentences.removeAll(QString());
    const QString text = Translation::Pieces(sentences, kLineBreak);
    if (report.fault == LinkFault::PortMissing || report.fault == LinkFault::NoAnswer)
        tellNoRadio(QStringLiteral("%0:S"), text);
    else
        mState.events.tellError(QStringLiteral("%0:S"), {text});
}

// What an older radio has no room for, and the way out.
QStringList RadioOperations::olderDatabaseAdvice(const RadioReport &report) const {
    const QString version = report.details.value(0);
    const std::optional<qint32> level = mState.dictionary.versionLevelByName(version);
    const QStringList lost =
        OlderVersion(mState.current(), level.value_or(mState.current().versionLevel())).lostFields();
    QStringList sentences;
    if (!lost.isEmpty())
        sentences += Translation::Pieces(
            {QStringLiteral("It has no room for the values of: "), Translation::Pieces(lost, QStringLiteral(", "))},
            {});
    sentences +=
        Translation::Piece(QStringLiteral("Save the data as version %0:S, then program the radio."), {version});
    return sentences;
}

void RadioOperations::InterrogateRadio() {
    const RadioReport report = run([this](const QString &port) { return mLink.interrogate(port); }, true);
    settleOpenRun(report);
}

bool RadioOperations::mayReplaceData() {
    return !mState.journal.isDirty() ||
           mState.events.askGeneral(
               QStringLiteral("You have made changes that have not been saved to a file or a radio."
                              "%0:S Do you want to continue loading new details, and lose these "
                              "changes?"),
               QStringLiteral("Reading Radio"), {kLineBreak});
}

void RadioOperations::ReadRadio(bool &result) {
    result = false;
    if (!mayReplaceData()) {
        mState.events.raiseProgress(
            [](ProgressEvents &listener) { listener.mobjTransformerEvents_ProgressBarEnd(true); });
        return;
    }
    const RadioReport report = run([this](const QString &port) { return mLink.read(port); }, false);
    settleOpenRun(report);
    if (!report.succeeded() || !report.identity)
        return;
    ImageDecoder decoder(mState.dictionary);
    std::optional<TierData> data = decoder.decode(*report.identity, report.image);
    if (!data) {
        mState.events.tellError(
            QStringLiteral("The radio's content cannot be understood: %0:S. The present data was not "
                           "changed."),
            {decoder.problem()});
        return;
    }
    takeOver(std::move(*data));
    tellContact(QStringLiteral("Read from radio"), *report.identity);
    result = true;
}

void RadioOperations::takeOver(TierData &&data) {
    const TierIndex tier = data.tier();
    mState.document.data.replace(std::move(data));
    mState.document.data.setCurrentTier(tier);
    mState.document.unknown.forgetTier(tier);
    mState.resetPositions(tier);
    // What was read belongs to the radio: a save asks for a name and cannot replace the file of another one.
    mState.fileName.clear();
    mState.fileHash.clear();
    mState.fileComment.clear();
    mState.journal.recordReplacement({tier}, false);
    mTiers.raiseChangeToTier();
}

RadioCompatibility::Data RadioOperations::presentData() const {
    const TierData &data = mState.current();
    const FieldDefinition *band = mState.dictionary.find(kBand);
    return {.tier = quint8(data.tier().place()),
            .band = quint8(band == nullptr ? 0 : data.value(band->index, {}).number()),
            .databaseLevel = quint8(data.versionLevel())};
}

void RadioOperations::ProgramRadio() {
    if (!mForms.FinalValidate()) {
        mState.events.raiseProgress(
            [](ProgressEvents &listener) { listener.mobjTransformerEvents_ProgressBarEnd(true); });
        return;
    }
    mOwnRun.reset();
    const RadioReport report =
        run([this](const QString &port) { return mLink.program(port, presentData(), *this); }, false);
    settleOwnRun(report);
    if (!report.succeeded())
        return;
    mState.journal.tierIsStored(mState.tier());
    tellContact(QStringLiteral("Programmed"), *report.identity);
    mState.events.raise([](TransformerEvents &listener) { listener.TransformerEvents_SetTierNodeGreenTick(true); });
    mState.events.tellDone(RadioReportText::outcome(report.outcome));
}

// A run that ended without doubt leaves no record; one that did not keeps it for the next contact.
void RadioOperations::settleOwnRun(const RadioReport &report) {
    if (!report.identity || report.outcome == RadioOutcome::LastAnswerLost)
        return;
    if (mOwnRun)
        mRuns.remove(*mOwnRun);
    else
        settleOpenRun(report); // nothing was written: an earlier run is still to be explained
}

void RadioOperations::settleOpenRun(const RadioReport &report) {
    if (!report.identity || !report.checksum)
        return;
    const QString serial = report.identity->serialText();
    const std::optional<RunRecord> open = mRuns.of(serial);
    if (!open)
        return;
    tellOpenRunEnd(*open, *report.checksum);
    mRuns.remove(serial);
}

void RadioOperations::tellOpenRunEnd(const RunRecord &open, quint32 checksum) {
    const char *sentence =
        "The radio %0:S, whose programming was interrupted, has neither its old nor the new content: it "
        "has been programmed elsewhere since.";
    if (checksum == open.newContent)
        sentence = "The radio %0:S, whose programming was interrupted, has the new content, whole.";
    else if (checksum == open.oldContent)
        sentence = "The radio %0:S, whose programming was interrupted, has its old content, whole.";
    mState.events.tell(QString::fromLatin1(sentence), {open.serialNumber});
}

void RadioOperations::tellOpenRuns() {
    for (const QString &serial : mRuns.serialNumbers())
        mState.events.tell(
            QStringLiteral("The programming of the radio %0:S was interrupted, and its state is open: it "
                           "holds either its old or the new content. Connect it again and interrogate "
                           "it."),
            {serial});
}

void RadioOperations::phaseStarted(RadioPhase phase, qint32 total) {
    mState.events.raiseProgress([&](ProgressEvents &listener) {
        listener.mobjTransformerEvents_ProgressBarStart(total, RadioPhases::title(phase));
    });
}

void RadioOperations::advanced(qint32 increment, const QString &item, const QString &percentage) {
    mState.events.raiseProgress(
        [&](ProgressEvents &listener) { listener.mobjTransformerEvents_ProgressPing(increment, item, percentage); });
}

QString RadioOperations::nameOf(const RadioIdentity &identity) const {
    return QStringLiteral("%1, %2, %3")
        .arg(mCompatibility.tierName(identity.tier), mCompatibility.bandName(identity.band), identity.serialText());
}

// What was done last, with which radio and when.
void RadioOperations::tellContact(const QString &action, const RadioIdentity &identity) {
    const QString time = QTime::currentTime().toString(QStringLiteral("hh:mm:ss"));
    mState.events.lastAction(action, nameOf(identity) + QStringLiteral(", ") + time);
}

void RadioOperations::identified(const RadioIdentity &identity) {
    const QString model = nameOf(identity);
    mState.events.raiseProgress([&](ProgressEvents &listener) {
        listener.mobjTransformerEvents_RadioInfo(model, identity.softwareText(),
                                                 mCompatibility.versionName(identity.databaseLevel),
                                                 QString::number(identity.hardwareRevision), identity.productCode);
    });
}

QString RadioOperations::storeRestorePoint(const RadioIdentity &identity, const QByteArray &present) {
    if (mState.places.restoreFolder.isEmpty())
        return {};
    ImageDecoder decoder(mState.dictionary);
    std::optional<TierData> data = decoder.decode(identity, present);
    if (!data) {
        const bool anyway = mState.events.ask(
            QStringLiteral("The radio's present content cannot be understood and cannot be kept as a restore point: "
                           "%0:S.%1:SDo you want to replace it all the same?"),
            {decoder.problem(), kLineBreak});
        return anyway ? QString() : decoder.problem();
    }
    DataDocument document(mState.dictionary);
    document.data.setCurrentTier(data->tier());
    document.data.replace(std::move(*data));
    QCoreApplication::processEvents(); // decoding and writing are a repaint apart
    try {
        const DataFileWriter writer(document);
        (void)RestorePoints(mState.places.restoreFolder)
            .store(identity.serialText(),
                   writer.write(writer.header(mState.callerVersion, QStringLiteral("Restore point"))));
        return {};
    } catch (const RunTimeError &fault) {
        return fault.Description;
    }
}

QByteArray RadioOperations::imageOver(const RadioIdentity &identity, const QByteArray &present) {
    return ImageEncoder(mState.current(), identity.databaseLevel).encode(present);
}

QString RadioOperations::runStarts(const RadioIdentity &identity, quint32 oldContent, quint32 newContent) {
    const QString serial = identity.serialText();
    try {
        if (const std::optional<RunRecord> earlier = mRuns.of(serial))
            tellOpenRunEnd(*earlier, oldContent);
        mRuns.store({.serialNumber = serial, .oldContent = oldContent, .newContent = newContent});
        mOwnRun = serial;
        return {};
    } catch (const FileProblem &problem) {
        return problem.Description;
    }
}
