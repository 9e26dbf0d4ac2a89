#include "component_loader.h"

#include "main_application.h"
#include "run_time_error.h"
#include "test_services.h"
#include "transformer.h"

#include <QTemporaryDir>
#include <QTest>

// Where the component is looked for, and what happens when it is not there or is no component.
class ComponentLoaderTest : public QObject {
    Q_OBJECT

  public:
    explicit ComponentLoaderTest(ErrorReport &errors) : mErrors(errors) {}

  private Q_SLOTS:
    void cleanup() { qunsetenv("KX4600_TRANSFORMER"); }
    void namedFileIsTheOnlyCandidate();
    void foldersAreSearchedInOrder();
    void missingAndForeignFilesRaise_data();
    void missingAndForeignFilesRaise();
    void escapedExceptionIsReportedByTheLastNet();

  private:
    ErrorReport &mErrors;
};

void ComponentLoaderTest::namedFileIsTheOnlyCandidate() {
    qputenv("KX4600_TRANSFORMER", "/x/libOther.so");
    QCOMPARE(ComponentLoader::candidates(QStringLiteral("/p")), QStringList(QStringLiteral("/x/libOther.so")));
}

void ComponentLoaderTest::foldersAreSearchedInOrder() {
    qunsetenv("KX4600_TRANSFORMER");
    QCOMPARE(ComponentLoader::candidates(QStringLiteral("/p")),
             QStringList({QStringLiteral("/p/libTransformer.so"), QStringLiteral("/p/plugins/libTransformer.so"),
                          QStringLiteral("/p/../lib/kx4600/libTransformer.so")}));
}

void ComponentLoaderTest::missingAndForeignFilesRaise_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("exists");
    QTest::newRow("missing") << QByteArray() << false;
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("text") << QByteArray("no library at all") << true;
}

void ComponentLoaderTest::missingAndForeignFilesRaise() {
    QFETCH(QByteArray, content);
    QFETCH(bool, exists);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("libTransformer.so")));
    if (exists) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
    }
    qunsetenv("KX4600_TRANSFORMER");
    try {
        const auto transformer = ComponentLoader::load(folder.path());
        QFAIL("it was loaded");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number, ErrorNumber::kBadArgument);
        QVERIFY(!error.Description.isEmpty());
    }
}

namespace {
class Thrower final : public QObject {
  public:
    bool event(QEvent * /*event*/) override {
        throw RunTimeError(ErrorNumber::kIndexOutOfRange, QString(), QStringLiteral("lost"));
    }
};
} // namespace

void ComponentLoaderTest::escapedExceptionIsReportedByTheLastNet() {
    FailingErrorSink sink;
    sink.expectReport();
    mErrors.SetSink(&sink);
    Thrower thrower;
    QEvent event(QEvent::User);
    QVERIFY(!QCoreApplication::sendEvent(&thrower, &event));
    QCOMPARE(sink.reports(), QStringList(QStringLiteral("KX4600 Programming Application: notify\r\nlost")));
    QVERIFY(sink.MainWindowClosed());
    mErrors.SetSink(nullptr);
}

int main(int argc, char **argv) {
    ErrorReport errors(false);
    MainApplication application(argc, argv, errors);
    ComponentLoaderTest test(errors);
    return QTest::qExec(&test, argc, argv);
}
#include "component_loader_test.moc"
