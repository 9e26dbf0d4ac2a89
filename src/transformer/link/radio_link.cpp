#include "radio_link.h"

#include "checksums.h"
#include "image_transfer.h"

#include <QScopeGuard>

using namespace Wire;

// What one operation works with.
struct RadioLink::Run {
    Run(ByteLine &line, const bool &aborted, const QString &port) : device(port), channel(line, aborted) {}

    [[nodiscard]] const RadioIdentity &radio() const { return *report.identity; }

    QString device;
    RequestChannel channel;
    RadioSession session{channel};
    RadioReport report;
};

RadioLink::RadioLink(std::unique_ptr<ByteLine> line, RadioCompatibility compatibility)
    : mLine(std::move(line)), mCompatibility(compatibility) {}

RadioLink::~RadioLink() = default;

template <class Work>
RadioReport RadioLink::run(const QString &device, Work work) {
    RadioReport refused;
    refused.fault = LinkFault::AlreadyRunning;
    if (mRunning)
        return refused;
    mRunning = true;
    mAborted = false;
    Run run(*mLine, mAborted, device);
    run.channel.setTap(mTap);
    const auto ended = qScopeGuard([this, &run] {
        run.session.close();
        mLine->close();
        mRunning = false;
    });
    try {
        mLine->open(device);
        work(run);
        run.report.stage = LinkStage::Done;
    } catch (const LinkFailure &failure) {
        run.report.fault = failure.fault;
        run.report.details = failure.details;
    }
    return run.report;
}

RadioReport RadioLink::interrogate(const QString &device) {
    return run(device, [this](Run &run) {
        identify(run);
        openSession(run);
        run.report.stage = LinkStage::Reading;
        run.report.checksum = run.session.checksum(Bank::Active, run.radio().imageSize);
    });
}

RadioReport RadioLink::read(const QString &device) {
    return run(device, [this](Run &run) {
        identify(run);
        run.report.stage = LinkStage::Comparing;
        mCompatibility.checkReadable(run.radio());
        openSession(run);
        run.report.image = readActive(run, QStringLiteral("Reading data from radio"));
    });
}

RadioReport RadioLink::program(const QString &device, const RadioCompatibility::Data &data, ProgramContent &content) {
    return run(device, [&](Run &run) {
        identify(run);
        run.report.stage = LinkStage::Comparing;
        mCompatibility.checkProgrammable(run.radio(), data);
        openSession(run);
        const QByteArray present = readActive(run, QStringLiteral("Reading present data for the restore point"));
        run.report.stage = LinkStage::StoringRestorePoint;
        const QByteArray image = content.imageOver(run.radio(), present);
        if (image.size() != present.size())
            throw LinkFailure(LinkFault::WrongLayout, {QString::number(present.size()), QString::number(image.size())});
        const quint32 oldContent = Checksums::crc32(present);
        QString problem = content.storeRestorePoint(run.radio(), present);
        if (problem.isEmpty())
            problem = content.runStarts(run.radio(), oldContent, Checksums::crc32(image));
        if (!problem.isEmpty())
            throw LinkFailure(LinkFault::NoRestorePoint, {problem});
        resume(run, oldContent);
        writeSecond(run, image);
        commit(run, image, oldContent);
    });
}

void RadioLink::identify(Run &run) {
    run.report.stage = LinkStage::Identifying;
    if (mProgress != nullptr)
        mProgress->phaseStarted(RadioPhase::Interrogation, 0);
    run.report.identity = run.session.contact(run.device);
    if (mProgress != nullptr)
        mProgress->identified(run.radio());
}

void RadioLink::openSession(Run &run) {
    run.report.stage = LinkStage::OpeningSession;
    run.session.open();
    run.session.raiseSpeed(run.radio());
}

QByteArray RadioLink::readActive(Run &run, const QString &item) {
    run.report.stage = LinkStage::Reading;
    const quint32 size = run.radio().imageSize;
    ImageTransfer transfer(run.session, run.radio().maxBlock, mProgress);
    transfer.startPhase(RadioPhase::Reading, size);
    QByteArray image = transfer.read(Bank::Active, size, item);
    run.report.checksum = run.session.checksum(Bank::Active, size);
    if (*run.report.checksum != Checksums::crc32(image))
        throw LinkFailure(LinkFault::ChecksumDiffers);
    return image;
}

void RadioLink::resume(Run &run, quint32 oldContent) {
    if (stillThere(run, oldContent))
        return;
    run.report.stage = LinkStage::Identifying;
    if (run.session.contact(run.device) != run.radio())
        throw LinkFailure(LinkFault::CutOff); // another radio has been plugged in
    openSession(run);
    run.report.stage = LinkStage::StoringRestorePoint;
    if (run.session.checksum(Bank::Active, run.radio().imageSize) != oldContent)
        throw LinkFailure(LinkFault::ChecksumDiffers);
}

bool RadioLink::stillThere(Run &run, quint32 oldContent) {
    try {
        return run.session.checksum(Bank::Active, run.radio().imageSize) == oldContent;
    } catch (const LinkFailure &failure) {
        if (failure.fault == LinkFault::Cancelled)
            throw;
        return false;
    }
}

void RadioLink::writeSecond(Run &run, const QByteArray &image) {
    ImageTransfer transfer(run.session, run.radio().maxBlock, mProgress);
    transfer.startPhase(RadioPhase::Programming, 2 * image.size());
    run.report.stage = LinkStage::Writing;
    run.report.outcome = RadioOutcome::OldContent;
    transfer.write(image, QStringLiteral("Writing data to radio"));
    run.report.stage = LinkStage::ReadingBack;
    const QByteArray written = transfer.read(Bank::Second, quint32(image.size()), QStringLiteral("Comparing"));
    const quint32 stored = run.session.checksum(Bank::Second, quint32(image.size()));
    if (written != image || stored != Checksums::crc32(image))
        throw LinkFailure(LinkFault::ChecksumDiffers);
}

void RadioLink::commit(Run &run, const QByteArray &image, quint32 oldContent) {
    const quint32 newContent = Checksums::crc32(image);
    run.report.stage = LinkStage::Committing;
    run.report.outcome = RadioOutcome::LastAnswerLost;
    run.channel.setUninterruptible(true);
    if (!run.session.commit({run.radio().layout, newContent})) {
        run.report.outcome = RadioOutcome::OldContent;
        throw LinkFailure(LinkFault::ChecksumDiffers);
    }
    run.report.stage = LinkStage::Confirming;
    run.report.checksum = run.session.checksum(Bank::Active, quint32(image.size()));
    if (*run.report.checksum == newContent) {
        run.report.outcome = RadioOutcome::NewContentVerified;
        return;
    }
    if (*run.report.checksum == oldContent)
        run.report.outcome = RadioOutcome::OldContent;
    throw LinkFailure(LinkFault::ChecksumDiffers);
}
