#include "component_listener.h"
#include "radio_operations.h"
#include "restore_points.h"
#include "rows.h"
#include "run_records.h"
#include "value_text.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_radio_operations : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        mFolder = std::make_unique<QTemporaryDir>();
        mListener.clear();
        mListener.answer = 6;
    }

    void cleanup() {
        if (mRadio) {
            mRadio->terminate();
            mRadio->waitForFinished();
        }
        mRadio.reset();
    }

    void programmedValuesAreReadBackByAFreshComponent() {
        startRadio({u"--tier"_s, u"Standard"_s, u"--serial"_s, u"12345678"_s});
        const std::unique_ptr<TransformerComponent> first = window();
        bool read = false;
        first->ReadRadio(true, read);
        QVERIFY2(read, qPrintable(mListener.messages.join(u'\n')));
        QCOMPARE(first->GetCurrentTier(), u"Standard"_s);
        QCOMPARE(ValueText::of(first->GetValue(u"SerialNumber"_s, 0)), u"12345678"_s);
        bool ok = false;
        first->SetValue(u"EconomyTimer"_s, 99, 0, true, ok);
        QVERIFY(ok);
        mListener.clear();
        first->ProgramRadio();
        QVERIFY2(first->radio().lastReport()->succeeded(), qPrintable(mListener.messages.join(u'\n')));
        QVERIFY(!first->GetDataIsDirty());
        QVERIFY(mListener.log.contains(u"ProgressBarStart Programming Radio"_s));
        QCOMPARE(mListener.messages.last(), u"The radio has the new content, verified."_s);
        QVERIFY(RunRecords(path("state")).serialNumbers().isEmpty());

        const std::unique_ptr<TransformerComponent> fresh = window();
        fresh->ReadRadio(true, read);
        QVERIFY(read);
        QCOMPARE(ValueText::of(fresh->GetValue(u"EconomyTimer"_s, 0)), u"99"_s);

        // What the radio held before stands among the restore points.
        const QStringList points = RestorePoints(path("restore")).of(u"12345678"_s);
        QCOMPARE(points.size(), 1);
        fresh->ReadFile(points.first(), 0, 0, false);
        QCOMPARE(ValueText::of(fresh->GetValue(u"EconomyTimer"_s, 0)), u"10"_s);
    }

    void readLeavesTheOtherTiers() {
        startRadio({u"--tier"_s, u"Advanced"_s});
        const std::unique_ptr<TransformerComponent> component = window();
        bool ok = false;
        component->SetValue(u"EconomyTimer"_s, 44, 0, true, ok);
        component->ReadRadio(true, ok);
        QVERIFY(ok);
        QVERIFY(component->GetDataIsDirty());
        component->ChangeTier(u"Basic"_s);
        QCOMPARE(ValueText::of(component->GetValue(u"EconomyTimer"_s, 0)), u"44"_s);
    }

    void unfitRadioChangesNothing() {
        const QString untouched = u"Nothing was sent to the radio."_s;

        for (const auto &[radio, told] : Rows<QStringList, QStringList>{
                 {"tier", {u"--tier"_s, u"Advanced"_s}, {u"KX4600 Advanced"_s, untouched}},
                 {"older version",
                  {u"--tier"_s, u"Basic"_s, u"--version"_s, u"1"_s},
                  {u"no room for the values of: Companding (Channels)\n"_s, u"Save the data as version 3.10"_s,
                   untouched}},
             }) {
            cleanup();
            init();
            startRadio(radio);
            const std::unique_ptr<TransformerComponent> component = window();
            bool ok = false;
            component->SetValue(u"ChannelCompanding"_s, 1, 1, true, ok);
            component->ProgramRadio();
            QVERIFY(!component->radio().lastReport()->succeeded());
            for (const QString &part : told)
                QVERIFY2(mListener.messages.last().contains(part), qPrintable(mListener.messages.last()));
            QVERIFY(mListener.log.contains(u"ProgressBarEnd 1"_s));
        }
    }

    void openRunIsExplainedAtTheNextContact() {
        for (const auto &[content, sentence] : Rows<QString, QString>{
                 {"old", u"old"_s, u"has its old content"_s},
                 {"new", u"new"_s, u"has the new content"_s},
                 {"neither", u"other"_s, u"programmed elsewhere"_s},
             }) {
            cleanup();
            init();
            startRadio({u"--serial"_s, u"12345678"_s});
            const std::unique_ptr<TransformerComponent> component = window();
            component->InterrogateRadio();
            QVERIFY(component->radio().lastReport()->succeeded());
            QVERIFY(mListener.log.contains(u"ProgressBarEnd 0"_s));
            const quint32 present = component->radio().lastReport()->checksum.value();
            RunRecords(path("state"))
                .store({.serialNumber = u"12345678"_s,
                        .oldContent = content == u"old"_s ? present : present + 1,
                        .newContent = content == u"new"_s ? present : present + 2});
            mListener.clear();
            const std::unique_ptr<TransformerComponent> next = window();
            next->StartUp();
            QVERIFY(mListener.messages.value(0).contains(u"12345678"_s));
            next->InterrogateRadio();
            QVERIFY2(mListener.messages.last().contains(sentence), qPrintable(mListener.messages.last()));
            QVERIFY(RunRecords(path("state")).serialNumbers().isEmpty());
        }
    }

  private:
    [[nodiscard]] std::unique_ptr<TransformerComponent> window() {
        auto component = std::make_unique<TransformerComponent>(ComponentPlaces{.settingsFile = {},
                                                                                .journalFolder = {},
                                                                                .stateFolder = path("state"),
                                                                                .restoreFolder = path("restore"),
                                                                                .dataFolder = {}});
        component->AddListener(&mListener);
        component->AddProgressListener(&mListener);
        component->SaveSetting(u"CommPortNumber"_s, path("radio"));
        return component;
    }

    void startRadio(const QStringList &options) {
        mRadio = std::make_unique<QProcess>();
        mRadio->start(qEnvironmentVariable("KX4600_BIN") + u"/kx4600sim"_s,
                      QStringList{u"--link"_s, path("radio"), u"--image"_s, path("image"), u"--full-speed"_s} +
                          options);
        QVERIFY(mRadio->waitForStarted());
        QVERIFY(mRadio->waitForReadyRead(10000));
    }

    [[nodiscard]] QString path(const char *name) const { return mFolder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> mFolder;
    ComponentListener mListener;
    std::unique_ptr<QProcess> mRadio;
};

QTEST_GUILESS_MAIN(tst_radio_operations)
#include "tst_radio_operations.moc"
