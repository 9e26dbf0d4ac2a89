#pragma once

#include "byte_line.h"
#include "radio_compatibility.h"
#include "radio_report.h"

#include <memory>

class ImageTransfer;
class RadioProgress;
class RadioSession;
class RequestChannel;

// What a programming run asks of its caller, in this order. Nothing has been written to the radio when either is
// called.
class ProgramContent {
  public:
    virtual ~ProgramContent() = default;
    // Keeps what the radio holds at present. "" or why it could not be kept, which ends the run.
    [[nodiscard]] virtual QString storeRestorePoint(const RadioIdentity &identity, const QByteArray &present) = 0;
    // The whole new content (see ImageEncoder), with reserved bytes taken over from the present one. Must have its
    // length.
    [[nodiscard]] virtual QByteArray imageOver(const RadioIdentity &identity, const QByteArray &present) = 0;
    // The last call before the first write: what the run is about to change, as CRC-32 of both contents, so that an
    // interrupted run can be explained later. "" or why that could not be kept, which ends the run.
    [[nodiscard]] virtual QString runStarts(const RadioIdentity &identity, quint32 oldContent, quint32 newContent) = 0;
};

// The radio operations. Each opens the port, does its work while the event loop runs, closes the port and answers with
// a report; none throws for what the line, the radio or the user does. One at a time: an operation that is asked for
// from inside another one answers AlreadyRunning.
class RadioLink {
  public:
    RadioLink(std::unique_ptr<ByteLine> line, RadioCompatibility compatibility);
    ~RadioLink();

    void setProgress(RadioProgress *progress) { mProgress = progress; } // not owned; null: none
    void setTap(WireTap *tap) { mTap = tap; }                           // not owned; null: none

    // Who the radio is, and the checksum of its content.
    [[nodiscard]] RadioReport interrogate(const QString &device);
    [[nodiscard]] RadioReport read(const QString &device);
    // The caller has checked the data.
    [[nodiscard]] RadioReport program(const QString &device, const RadioCompatibility::Data &data,
                                      ProgramContent &content);
    // Ends the running operation at its next turn of the event loop, nothing if none runs. Not from the commit on: what
    // the radio then answers decides.
    void abort() { mAborted = mRunning; }
    [[nodiscard]] bool running() const { return mRunning; }

  private:
    struct Run;
    template <class Work>
    RadioReport run(const QString &device, Work work);

    void identify(Run &run);
    void openSession(Run &run);
    QByteArray readActive(Run &run, const QString &item);
    // The caller may have taken its time (a question to the user), and the radio has ended the session.
    void resume(Run &run, quint32 oldContent);
    [[nodiscard]] bool stillThere(Run &run, quint32 oldContent);
    void writeSecond(Run &run, const QByteArray &image);
    void commit(Run &run, const QByteArray &image, quint32 oldContent);

    std::unique_ptr<ByteLine> mLine;
    RadioCompatibility mCompatibility;
    RadioProgress *mProgress = nullptr;
    WireTap *mTap = nullptr;
    bool mRunning = false;
    bool mAborted = false;
};
