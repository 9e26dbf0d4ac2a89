#include "component_listener.h"
#include "radio_operations.h"
#include "restore_points.h"
#include "run_records.h"
#include "value_text.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class tst_radio_operations : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void programmedValuesAreReadBackByAFreshComponent();
    void readLeavesTheOtherTiers();
    void unfitRadioChangesNothing_data();
    void unfitRadioChangesNothing();
    void missingPortIsNamed();
    void openRunIsExplainedAtTheNextContact_data();
    void openRunIsExplainedAtTheNextContact();

  private:
    [[nodiscard]] std::unique_ptr<TransformerComponent> window();
    void startRadio(const QStringList &options);
    [[nodiscard]] QString path(const char *name) const { return mFolder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> mFolder;
    ComponentListener mListener;
    std::unique_ptr<QProcess> mRadio;
};

std::unique_ptr<TransformerComponent> tst_radio_operations::window() {
    auto component = std::make_unique<TransformerComponent>(ComponentPlaces{.settingsFile = {},
                                                                            .journalFolder = {},
                                                                            .stateFolder = path("state"),
                                                                            .restoreFolder = path("restore"),
                                                                            .dataFolder = {}});
    component->AddListener(&mListener);
    component->AddProgressListener(&mListener);
    component->SaveSetting(QStringLiteral("CommPortNumber"), path("radio"));
    return component;
}

void tst_radio_operations::init() {
    mFolder = std::make_unique<QTemporaryDir>();
    mListener.clear();
    mListener.answer = 6;
}

void tst_radio_operations::cleanup() {
    if (mRadio) {
        mRadio->terminate();
        mRadio->waitForFinished();
    }
    mRadio.reset();
}

void tst_radio_operations::startRadio(const QStringList &options) {
    mRadio = std::make_unique<QProcess>();
    mRadio->start(qEnvironmentVariable("KX4600_BIN") + QStringLiteral("/kx4600sim"),
                  QStringList{QStringLiteral("--link"), path("radio"), QStringLiteral("--image"), path("image"),
                              QStringLiteral("--full-speed")} +
                      options);
    QVERIFY(mRadio->waitForStarted());
    QVERIFY(mRadio->waitForReadyRead(10000));
}

void tst_radio_operations::programmedValuesAreReadBackByAFreshComponent() {
    startRadio(
        {QStringLiteral("--tier"), QStringLiteral("Standard"), QStringLiteral("--serial"), QStringLiteral("12345678")});
    const std::unique_ptr<TransformerComponent> first = window();
    bool read = false;
    first->ReadRadio(true, read);
    QVERIFY2(read, qPrintable(mListener.messages.join(u'\n')));
    QCOMPARE(first->GetCurrentTier(), QStringLiteral("Standard"));
    QCOMPARE(ValueText::of(first->GetValue(QStringLiteral("SerialNumber"), 0)), QStringLiteral("12345678"));
    bool ok = false;
    first->SetValue(QStringLiteral("EconomyTimer"), 99, 0, true, ok);
    QVERIFY(ok);
    mListener.clear();
    first->ProgramRadio();
    QVERIFY2(first->radio().lastReport()->succeeded(), qPrintable(mListener.messages.join(u'\n')));
    QVERIFY(!first->GetDataIsDirty());
    QVERIFY(mListener.log.contains(QStringLiteral("ProgressBarStart Programming Radio")));
    QCOMPARE(mListener.messages.last(), QStringLiteral("The radio has the new content, verified."));
    QVERIFY(RunRecords(path("state")).serialNumbers().isEmpty());

    const std::unique_ptr<TransformerComponent> fresh = window();
    fresh->ReadRadio(true, read);
    QVERIFY(read);
    QCOMPARE(ValueText::of(fresh->GetValue(QStringLiteral("EconomyTimer"), 0)), QStringLiteral("99"));

    // What the radio held before stands among the restore points.
    const QStringList points = RestorePoints(path("restore")).of(QStringLiteral("12345678"));
    QCOMPARE(points.size(), 1);
    fresh->ReadFile(points.first(), 0, 0, false);
    QCOMPARE(ValueText::of(fresh->GetValue(QStringLiteral("EconomyTimer"), 0)), QStringLiteral("10"));
}

void tst_radio_operations::readLeavesTheOtherTiers() {
    startRadio({QStringLiteral("--tier"), QStringLiteral("Advanced")});
    const std::unique_ptr<TransformerComponent> component = window();
    bool ok = false;
    component->SetValue(QStringLiteral("EconomyTimer"), 44, 0, true, ok);
    component->ReadRadio(true, ok);
    QVERIFY(ok);
    QVERIFY(component->GetDataIsDirty());
    component->ChangeTier(QStringLiteral("Basic"));
    QCOMPARE(ValueText::of(component->GetValue(QStringLiteral("EconomyTimer"), 0)), QStringLiteral("44"));
}

void tst_radio_operations::unfitRadioChangesNothing_data() {
    QTest::addColumn<QStringList>("radio");
    QTest::addColumn<QStringList>("told");
    const QString untouched = QStringLiteral("Nothing was sent to the radio.");
    QTest::newRow("tier") << QStringList{QStringLiteral("--tier"), QStringLiteral("Advanced")}
                          << QStringList{QStringLiteral("KX4600 Advanced"), untouched};
    QTest::newRow("older version") << QStringList{QStringLiteral("--tier"), QStringLiteral("Basic"),
                                                  QStringLiteral("--version"), QStringLiteral("1")}
                                   << QStringList{QStringLiteral("no room for the values of: Companding (Channels)\n"),
                                                  QStringLiteral("Save the data as version 3.10"), untouched};
}

void tst_radio_operations::unfitRadioChangesNothing() {
    QFETCH(QStringList, radio);
    QFETCH(QStringList, told);
    startRadio(radio);
    const std::unique_ptr<TransformerComponent> component = window();
    bool ok = false;
    component->SetValue(QStringLiteral("ChannelCompanding"), 1, 1, true, ok);
    component->ProgramRadio();
    QVERIFY(!component->radio().lastReport()->succeeded());
    for (const QString &part : told)
        QVERIFY2(mListener.messages.last().contains(part), qPrintable(mListener.messages.last()));
    QVERIFY(mListener.log.contains(QStringLiteral("ProgressBarEnd 1")));
}

void tst_radio_operations::missingPortIsNamed() {
    const std::unique_ptr<TransformerComponent> component = window();
    bool ok = true;
    component->ReadRadio(true, ok);
    QVERIFY(!ok);
    QVERIFY2(mListener.messages.last().contains(path("radio")), qPrintable(mListener.messages.last()));
}

void tst_radio_operations::openRunIsExplainedAtTheNextContact_data() {
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("old") << "old"
                         << "has its old content";
    QTest::newRow("new") << "new"
                         << "has the new content";
    QTest::newRow("neither") << "other"
                             << "programmed elsewhere";
}

void tst_radio_operations::openRunIsExplainedAtTheNextContact() {
    QFETCH(QString, content);
    QFETCH(QString, sentence);
    startRadio({QStringLiteral("--serial"), QStringLiteral("12345678")});
    const std::unique_ptr<TransformerComponent> component = window();
    component->InterrogateRadio();
    QVERIFY(component->radio().lastReport()->succeeded());
    QVERIFY(mListener.log.contains(QStringLiteral("ProgressBarEnd 0")));
    const quint32 present = component->radio().lastReport()->checksum.value();
    RunRecords(path("state"))
        .store({.serialNumber = QStringLiteral("12345678"),
                .oldContent = content == QStringLiteral("old") ? present : present + 1,
                .newContent = content == QStringLiteral("new") ? present : present + 2});
    mListener.clear();
    const std::unique_ptr<TransformerComponent> next = window();
    next->StartUp();
    QVERIFY(mListener.messages.value(0).contains(QStringLiteral("12345678")));
    next->InterrogateRadio();
    QVERIFY2(mListener.messages.last().contains(sentence), qPrintable(mListener.messages.last()));
    QVERIFY(RunRecords(path("state")).serialNumbers().isEmpty());
}

QTEST_GUILESS_MAIN(tst_radio_operations)
#include "tst_radio_operations.moc"
