#include "message_codes.h"
#include "message_style.h"
#include "plain_caption.h"
#include "program_icons.h"
#include "program_style.h"
#include "twips.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QTest>

#include <algorithm>

class tst_services final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void twipsGoToTheNearestPixel_data();
    void twipsGoToTheNearestPixel();
    void captionLosesOnlyItsAccessKeyMarks_data();
    void captionLosesOnlyItsAccessKeyMarks();
    void styleFlagsGiveTheRightButtonsAndIcon_data();
    void styleFlagsGiveTheRightButtonsAndIcon();
    void everyIconIsDrawnAndFollowsThePalette_data();
    void everyIconIsDrawnAndFollowsThePalette();
    void whiteTickIsFainterThanAnyOtherIcon();
    void dropDownListObeysItsNumberOfRows();
};

void tst_services::twipsGoToTheNearestPixel_data() {
    QTest::addColumn<int>("twips");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<int>("pixels");
    QTest::newRow("one pixel at 96 dpi") << 15 << 96 << 1;
    QTest::newRow("just below the half") << 7 << 96 << 0;
    QTest::newRow("just above the half") << 8 << 96 << 1;
    QTest::newRow("canvas width") << 9345 << 96 << 623;
    QTest::newRow("canvas height") << 6430 << 96 << 429;
    QTest::newRow("parked to the left") << -75000 << 96 << -5000;
    QTest::newRow("negative rounds to the nearest too") << -8 << 96 << -1;
    QTest::newRow("120 dpi") << 9345 << 120 << 779;
}

void tst_services::twipsGoToTheNearestPixel() {
    QFETCH(int, twips);
    QFETCH(int, dpi);
    QTEST(TwipScale(dpi).toPixels(Twips{twips}).count, "pixels");
}

void tst_services::captionLosesOnlyItsAccessKeyMarks_data() {
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("plain");
    QTest::newRow("no mark") << QStringLiteral("Tx Power") << QStringLiteral("Tx Power");
    QTest::newRow("mark in front") << QStringLiteral("&Tx Power") << QStringLiteral("Tx Power");
    QTest::newRow("doubled mark shows one") << QStringLiteral("A && &B") << QStringLiteral("A & B");
    QTest::newRow("mark at the end") << QStringLiteral("Tx&") << QStringLiteral("Tx");
    QTest::newRow("trailing blanks stay") << QStringLiteral("Status    ") << QStringLiteral("Status    ");
}

void tst_services::captionLosesOnlyItsAccessKeyMarks() {
    QFETCH(QString, caption);
    QTEST(plainCaption(caption), "plain");
}

void tst_services::styleFlagsGiveTheRightButtonsAndIcon_data() {
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("icon");
    using namespace MessageButton;
    QTest::newRow("nothing given is an error with OK") << 0 << kOk << MessageIcon::kError;
    QTest::newRow("OK, cancel") << 1 << (kOk | kCancel) << MessageIcon::kError;
    QTest::newRow("abort, retry, ignore") << 2 << 112 << MessageIcon::kError;
    QTest::newRow("yes, no, cancel as a question") << (3 | 32) << 11 << MessageIcon::kQuestion;
    QTest::newRow("yes, no as a warning") << (4 | 48) << 3 << MessageIcon::kWarning;
    QTest::newRow("retry, cancel has no code") << 5 << kOk << MessageIcon::kError;
    QTest::newRow("style 6 shows yes") << 6 << kYes << MessageIcon::kError;
    QTest::newRow("style 7") << 7 << kOk << MessageIcon::kError;
    QTest::newRow("critical") << 16 << kOk << MessageIcon::kError;
    QTest::newRow("last value of an error") << 31 << kOk << MessageIcon::kError;
    QTest::newRow("last value of a question") << 47 << kOk << MessageIcon::kQuestion;
    QTest::newRow("last value of a warning") << 63 << kOk << MessageIcon::kWarning;
    QTest::newRow("information") << (64 | 4) << 3 << MessageIcon::kInformation;
    QTest::newRow("second button flag is looked at with the whole value")
        << (256 | 32) << kOk << MessageIcon::kInformation;
}

void tst_services::styleFlagsGiveTheRightButtonsAndIcon() {
    QFETCH(int, flags);
    QTEST(int(ReturnNLSButtons(flags)), "buttons");
    QTEST(int(ReturnNLSDialogType(flags)), "icon");
}

namespace {
QImage drawn(ProgramIcon icon, int size) { return loadIcon(icon).pixmap(QSize(size, size)).toImage(); }

// How much of the picture is covered, from 0 to 255 a point.
double coverage(const QImage &image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y));
    }
    return sum / (image.width() * image.height());
}

double lightness(const QImage &image) {
    double sum = 0;
    double weight = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            sum += colour.lightness() * colour.alpha();
            weight += colour.alpha();
        }
    }
    return weight == 0 ? 0 : sum / weight;
}
} // namespace

void tst_services::everyIconIsDrawnAndFollowsThePalette_data() {
    QTest::addColumn<int>("icon");
    QTest::addColumn<bool>("hasInk");
    for (int icon = 0; icon <= int(ProgramIcon::kSplash); ++icon) {
        const bool coloured = icon == int(ProgramIcon::kAccept) || icon == int(ProgramIcon::kReject) ||
                              icon == int(ProgramIcon::kTickGreen) || icon >= int(ProgramIcon::kApplication);
        QTest::addRow("icon %d", icon) << icon << !coloured;
    }
}

void tst_services::everyIconIsDrawnAndFollowsThePalette() {
    QFETCH(int, icon);
    QFETCH(bool, hasInk);
    const QPalette before = QGuiApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::WindowText, Qt::black);
    QGuiApplication::setPalette(palette);
    const QImage onLight = drawn(ProgramIcon(icon), 24);
    palette.setColor(QPalette::WindowText, Qt::white);
    QGuiApplication::setPalette(palette);
    const QImage onDark = drawn(ProgramIcon(icon), 24);
    QGuiApplication::setPalette(before);
    QVERIFY(coverage(onLight) > 1.0);
    QCOMPARE(lightness(onDark) > lightness(onLight) + 1.0, hasInk);
}

void tst_services::whiteTickIsFainterThanAnyOtherIcon() {
    const double white = coverage(drawn(ProgramIcon::kTickWhite, 24));
    for (int icon = 0; icon <= int(ProgramIcon::kApplication); ++icon) {
        if (icon != int(ProgramIcon::kTickWhite))
            QVERIFY(white < coverage(drawn(ProgramIcon(icon), 24)));
    }
}

void tst_services::dropDownListObeysItsNumberOfRows() {
    const ProgramStyle style;
    QCOMPARE(style.styleHint(QStyle::SH_ComboBox_Popup, nullptr, nullptr, nullptr), 0);
}

QTEST_MAIN(tst_services)
#include "tst_services.moc"
