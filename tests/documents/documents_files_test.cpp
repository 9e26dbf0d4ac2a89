#include "document_doubles.h"
#include "extended_file_dialog.h"
#include "mru.h"

#include <QDateTime>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class DocumentsFilesTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void recentFilesKeepTheirOrder_data();
    void recentFilesKeepTheirOrder();
    void longPathsAreShortened_data();
    void longPathsAreShortened();
    void filtersByExtension_data();
    void filtersByExtension();
    void defaultNames_data();
    void defaultNames();
    void previewLines_data();
    void previewLines();
    void aFolderIsRefusedAndNotRead();
    void dialogsAreAskedForTheRightThing_data();
    void dialogsAreAskedForTheRightThing();
    void theChosenVersionIsWritten();
    void aLostDataFolderFallsBack();
    void savedNamesGetTheExtension_data();
    void savedNamesGetTheExtension();
    void theDialogAsksAboutTheCompletedName();
};

namespace {
QStringList split(const char *names) { return QString::fromLatin1(names).split(u' ', Qt::SkipEmptyParts); }

void store(DocumentBench &bench, const QVariant &count, const QStringList &names) {
    bench.setSetting(QStringLiteral("MRUNum"), count);
    for (qsizetype i = 0; i < names.size(); ++i)
        bench.setSetting(QStringLiteral("MRU%1").arg(i + 1), names[i]);
}
} // namespace

void DocumentsFilesTest::recentFilesKeepTheirOrder_data() {
    QTest::addColumn<QVariant>("count");
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QStringList>("after");
    const auto row = [](const char *fault, const QVariant &count, const char *before, const char *saved,
                        const char *after) {
        QTest::newRow(fault) << count << split(before) << QString::fromLatin1(saved) << split(after);
    };
    const QVariant damaged(QStringLiteral("many"));
    row("first file ever", {}, "", "a", "a");
    row("new name goes first", 2, "a b", "c", "c a b");
    row("first name again changes nothing", 3, "a b c", "a", "a b c");
    row("last name again moves up", 3, "a b c", "c", "c a b");
    row("another case is another file", 2, "a b", "A", "A a b");
    row("full list drops its oldest", 10, "a b c d e f g h i j", "k", "k a b c d e f g h i");
    row("full list again drops nothing", 10, "a b c d e f g h i j", "j", "j a b c d e f g h i");
    row("a count above the list is ten", 99, "a b c d e f g h i j", "k", "k a b c d e f g h i");
    row("a negative count starts anew", -3, "a b", "c", "c");
    row("an unreadable count starts anew", damaged, "a b", "c", "c");
}

void DocumentsFilesTest::recentFilesKeepTheirOrder() {
    QFETCH(QVariant, count);
    QFETCH(QStringList, before);
    QFETCH(QString, saved);
    QFETCH(QStringList, after);
    DocumentBench bench;
    if (count.isValid())
        store(bench, count, before);
    clsMRU recent(bench.services.process);
    recent.Save(saved);
    QCOMPARE(recent.GetArray(), after);
    QCOMPARE(recent.Num(), qint32(after.size()));
    QCOMPARE(recent.Last(), after.first());
    QCOMPARE(recent.GetDisplayName(recent.Num() + 1), QString());
    QCOMPARE(recent.GetFileName(0), QString());
}

void DocumentsFilesTest::longPathsAreShortened_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *fault, const char *path, const char *shown) {
        QTest::newRow(fault) << QString::fromLatin1(path) << QString::fromLatin1(shown);
    };
    row("no name", "", "");
    row("no separator", "a-name-of-more-than-thirty-one-characters", "a-name-of-more-than-thirty-one-characters");
    row("one separator", "/a-name-of-more-than-thirty-one-characters", "/a-name-of-more-than-thirty-one-characters");
    row("30 characters stay", "/home/ab/cdefg/hijkl/mno/p.k4p", "/home/ab/cdefg/hijkl/mno/p.k4p");
    row("31 characters are shortened", "/home/ab/cdefg/hijkl/mnop/q.k4p", "/home/ab/c../hijkl/mnop/q.k4p");
    row("too few folders to shorten", "/home/a-folder-with-a-long-name/fleet.k4p",
        "/home/a-folder-with-a-long-name/fleet.k4p");
    row("second round gives three dots", "/home/anna/documents/customers/taxi/fleet-2026.k4p",
        "/home/anna/d../.../taxi/fleet-2026.k4p");
    row("neighbouring gaps become one", "/home/anna/documents/customers/london/north/taxi/fleet.k4p",
        "/home/anna/d../.../taxi/fleet.k4p");
    row("a server's name is skipped", "//server/share/fleets/customers/taxi/fleet.k4p",
        "//server/share/fleets/c../taxi/fleet.k4p");
    row("only separators behind the second", "/home////", "/home////");
    row("dots in the path itself end the work", "/a/b/.../.../.../.../.../.../.../.../.../c.k4p", "/a/b/.../c.k4p");
}

void DocumentsFilesTest::longPathsAreShortened() {
    QFETCH(QString, path);
    QFETCH(QString, shown);
    QCOMPARE(clsMRU::Shortened(path), shown);
}

void DocumentsFilesTest::filtersByExtension_data() {
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("filter");
    const auto row = [](const char *extension, const char *filter) {
        QTest::newRow(extension) << QString::fromLatin1(extension) << QString::fromLatin1(filter);
    };
    row("k4p", "KX4000 Files (*.k4p)|*.k4p|");
    row("K4P", "KX4000 Files (*.K4P)|*.K4P|");
    row("k4c", "KX4000 Cal Files (*.k4c)|*.k4c|");
    row("z2p", "ZB2500 Files (*.z2p)|*.z2p|");
    row("Z2c", "ZB2500 Cal Files (*.Z2c)|*.Z2c|");
    row("dat", "");
    row("", "");
}

void DocumentsFilesTest::filtersByExtension() {
    QFETCH(QString, extension);
    QFETCH(QString, filter);
    QCOMPARE(clsFileIO::GetExtensionFilter(extension), filter);
}

void DocumentsFilesTest::defaultNames_data() {
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<QVariant>("serial");
    QTest::addColumn<QString>("proposed");
    const auto row = [](const char *fault, const char *loaded, const QVariant &serial, const char *proposed) {
        QTest::newRow(fault) << QString::fromLatin1(loaded) << serial << QString::fromLatin1(proposed);
    };
    const auto text = [](const char *value) { return QVariant(QString::fromLatin1(value)); };
    row("serial number of a radio", "", 12345678, "KX4600 - 12345678.k4p");
    row("serial number as text with blanks", "", text(" 12345678 "), "KX4600 - 12345678.k4p");
    row("serial number above 32 bits", "", text("9000000001"), "KX4600 - 9000000001.k4p");
    row("no radio yet", "", 19000000, "KX4600.k4p");
    row("no radio yet, as text", "", text("19000000.0"), "KX4600.k4p");
    row("serial number that does not exist", "", text("Undefined"), "KX4600.k4p");
    row("empty serial number", "", text(""), "KX4600.k4p");
    row("loaded file keeps its name", "/data/fleet.k4p", 12345678, "fleet.k4p");
    row("extension in another case", "/data/Fleet.K4P", 12345678, "Fleet.K4P");
    row("foreign extension", "/data/fleet.dat", 12345678, "fleet.dat.k4p");
    row("no extension", "/data.k4p/fleet", 12345678, "fleet.k4p");
}

void DocumentsFilesTest::defaultNames() {
    QFETCH(QString, loaded);
    QFETCH(QVariant, serial);
    QFETCH(QString, proposed);
    DocumentBench bench;
    bench.component.when(QStringLiteral("GetFileName")).answers(loaded);
    bench.component.when(QStringLiteral("GetValue"), QStringLiteral("SerialNumber")).answers(serial);
    QCOMPARE(bench.files.DefaultFileName(), proposed);
}

void DocumentsFilesTest::previewLines_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("header"); // empty: not a data file
    QTest::addColumn<QString>("lines");
    const QString fleet = QStringLiteral("fleet.k4p");
    const QString date = QStringLiteral("Date = 03/02/2026 04:05:06\n");
    const auto header = [](const char *parts) { return QString::fromLatin1(parts).split(u'|'); };
    QTest::newRow("all lines") << fleet << header("KX4600|2|1.02.00.0034|3")
                               << date +
                                      QStringLiteral("Radio Model = KX4600\nDatabase Version = 2\nApplication Version "
                                                     "= 1.02.00.0034\nNetworks = 3");
    QTest::newRow("no application, no networks")
        << fleet << header("KX4600|2||0") << date + QStringLiteral("Radio Model = KX4600\nDatabase Version = 2");
    QTest::newRow("networks that are no number")
        << fleet << header("KX4600|2||x") << date + QStringLiteral("Radio Model = KX4600\nDatabase Version = 2");
    QTest::newRow("no data file") << fleet << QStringList() << QString();
    QTest::newRow("a folder is not looked into") << QStringLiteral("folder") << header("KX4600|2||0") << QString();
    QTest::newRow("a file that is gone") << QStringLiteral("gone.k4p") << header("KX4600|2||0") << QString();
}

void DocumentsFilesTest::previewLines() {
    QFETCH(QString, file);
    QFETCH(QStringList, header);
    QFETCH(QString, lines);
    DocumentBench bench;
    QFile fleet(bench.path(QStringLiteral("fleet.k4p")));
    QVERIFY(fleet.open(QIODevice::ReadWrite));
    QVERIFY(fleet.setFileTime(QDateTime({2026, 2, 3}, {4, 5, 6}), QFileDevice::FileModificationTime));
    fleet.close();
    bench.component.when(QStringLiteral("GetFileDetails")).answers(header);
    QStringList shown;
    for (const FileDetail &line : bench.files.FileDetails(bench.path(file)))
        shown << line.label + line.value;
    QCOMPARE(shown.join(u'\n'), lines);
}

void DocumentsFilesTest::aFolderIsRefusedAndNotRead() {
    DocumentBench bench;
    bench.services.boxes.expect(QStringLiteral("This action is invalid"), 1);
    QVERIFY(!bench.files.RequestReadFile(bench.path(QStringLiteral("folder"))));
    QCOMPARE(bench.steps(), QStringList());
    QCOMPARE(
        bench.services.boxes.shown(),
        QStringList(QStringLiteral("KX4600 Programming Application Procedure Halted: This action is invalid [16]")));
}

void DocumentsFilesTest::dialogsAreAskedForTheRightThing_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<QVariant>("generalDialogs");
    QTest::addColumn<QString>("asked"); // title, filter, extension, overwrite prompt
    const QString data = QStringLiteral("KX4000 Files (*.%1)|*.%1|All Files (*.*)|*.*");
    QTest::newRow("open") << QStringLiteral("open") << QVariant(1)
                          << QStringLiteral("Open File; %1; ").arg(data.arg(QStringLiteral("K4P")));
    QTest::newRow("save prompts") << QStringLiteral("save") << QVariant(1)
                                  << QStringLiteral("Save File; %1; k4p; prompt").arg(data.arg(QStringLiteral("k4p")));
    QTest::newRow("save prompts with a damaged setting")
        << QStringLiteral("save") << QVariant(QStringLiteral("x"))
        << QStringLiteral("Save File; %1; k4p; prompt").arg(data.arg(QStringLiteral("k4p")));
    QTest::newRow("save without questions")
        << QStringLiteral("save") << QVariant(0)
        << QStringLiteral("Save File; %1; k4p").arg(data.arg(QStringLiteral("k4p")));
    const QString squirt = QStringLiteral("Save File; Squirt Files (*.sqt)|*.sqt|All Files (*.*)|*.*; sqt");
    QTest::newRow("squirt prompts") << QStringLiteral("squirt") << QVariant(1) << squirt + QStringLiteral("; prompt");
    QTest::newRow("squirt without questions") << QStringLiteral("squirt") << QVariant(0) << squirt;
}

void DocumentsFilesTest::dialogsAreAskedForTheRightThing() {
    QFETCH(QString, command);
    QFETCH(QVariant, generalDialogs);
    QFETCH(QString, asked);
    DocumentBench bench;
    bench.setSetting(QStringLiteral("GeneralDialogs"), generalDialogs);
    if (command == QStringLiteral("open"))
        QVERIFY(!bench.files.RequestReadFile(QString()));
    else if (command == QStringLiteral("save"))
        QVERIFY(!bench.files.RequestSaveFile(QString()));
    else
        QVERIFY(!bench.files.RequestSaveSquirtFile());
    const FileDialogRequest &request = *bench.dialogs.request;
    QStringList parts{request.title, request.filter, request.extension};
    if (request.overwritePrompt && command != QStringLiteral("open"))
        parts << QStringLiteral("prompt");
    QCOMPARE(parts.join(QStringLiteral("; ")), asked);
}

void DocumentsFilesTest::theChosenVersionIsWritten() {
    DocumentBench bench;
    bench.component.when(QStringLiteral("GetProgramAsAvailable")).answers(true);
    bench.component.when(QStringLiteral("GetFileVersionList"))
        .answers(QStringList({QStringLiteral("1.Version 1.0"), QStringLiteral("2.Version 2.0")}));
    bench.component.when(QStringLiteral("GetFileVersionName")).answers(QStringLiteral("2.Version 2.0"));
    bench.dialogs.answer =
        FileDialogChoice{.fileName = bench.path(QStringLiteral("old.k4p")), .filterIndex = 1, .version = 1};
    QVERIFY(bench.files.RequestSaveFile(QString()));
    QCOMPARE(bench.dialogs.request->versions,
             QStringList({QStringLiteral("Version 1.0"), QStringLiteral("Version 2.0")}));
    QCOMPARE(bench.dialogs.request->version, 2);
    QCOMPARE(bench.steps().last(), QStringLiteral("SaveFile(~/old.k4p, , 1)"));
}

void DocumentsFilesTest::aLostDataFolderFallsBack() {
    DocumentBench bench;
    bench.setSetting(QStringLiteral("DataDirectory"), bench.path(QStringLiteral("folder")));
    QVERIFY(!bench.files.RequestReadFile(QString()));
    QCOMPARE(bench.dialogs.request->folder, bench.path(QStringLiteral("folder")));
    bench.setSetting(QStringLiteral("DataDirectory"), QStringLiteral("/no/such/folder"));
    QVERIFY(!bench.files.RequestReadFile(QString()));
    QCOMPARE(bench.dialogs.request->folder, bench.folder.path());
}

void DocumentsFilesTest::savedNamesGetTheExtension_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("saved");
    const auto row = [](const char *typed, const char *saved) {
        QTest::newRow(typed) << QString::fromLatin1(typed) << QString::fromLatin1(saved);
    };
    row("fleet", "fleet.k4p");
    row("fleet.k4p", "fleet.k4p");
    row("fleet.K4P", "fleet.K4P");
    row("fleet.txt", "fleet.txt.k4p");
    row("taxi v1.2", "taxi v1.2.k4p");
    row("fleet.dat", "fleet.dat");
    row("fleet.*", "fleet.*.k4p");
}

void DocumentsFilesTest::savedNamesGetTheExtension() {
    QFETCH(QString, typed);
    QFETCH(QString, saved);
    FileDialogRequest request;
    request.filter = QStringLiteral("KX4000 Files (*.k4p)|*.k4p|Other (*.dat)|*.dat|All Files (*.*)|*.*");
    request.extension = QStringLiteral("K4p");
    QCOMPARE(ExtendedFileDialogs::WithExtension(typed, request), saved);
}

void DocumentsFilesTest::theDialogAsksAboutTheCompletedName() {
    DocumentBench bench;
    ExtendedFileDialogs dialogs(bench.services.translation);
    bench.services.translate(
        {QStringLiteral("Radio Model = |Modèle = "), QStringLiteral("All Files|Tous les fichiers")});
    FileDialogRequest request;
    request.title = QStringLiteral("Save File");
    request.folder = bench.folder.path();
    request.fileName = QStringLiteral("other.k4p");
    request.filter = QStringLiteral("KX4000 Files (*.k4p)|*.k4p|All Files (*.*)|*.*");
    request.extension = QStringLiteral("k4p");
    request.overwritePrompt = true;
    request.details = [](const QString &) {
        return QList<FileDetail>{{QStringLiteral("Radio Model = "), QStringLiteral("<b>")}};
    };
    QString question;
    QString preview;
    QStringList filters;
    QTimer::singleShot(0, this, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        filters = dialog->nameFilters();
        preview = dialog->findChild<QLabel *>(QStringLiteral("lblFileDetails"))->text();
        auto *typed = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        typed->selectAll();
        typed->insert(QStringLiteral("fleet"));
        Q_EMIT typed->textEdited(typed->text()); // as by keys, which here would open the list of completions
        QTimer::singleShot(0, this, [&, dialog] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                question = box->text();
                box->button(QMessageBox::No)->click();
            }
            dialog->reject();
        });
        static_cast<QDialog *>(dialog)->accept();
    });
    QVERIFY(!dialogs.ShowSave(request));
    QVERIFY2(question.contains(QStringLiteral("fleet.k4p")), "an existing file would have been replaced unasked");
    QCOMPARE(preview, QStringLiteral("Modèle = <b>"));
    QCOMPARE(filters, QStringList({QStringLiteral("KX4000 Files (*.k4p) (*.k4p)"),
                                   QStringLiteral("Tous les fichiers (*.*) (*)")}));
}

QTEST_MAIN(DocumentsFilesTest)
#include "documents_files_test.moc"
