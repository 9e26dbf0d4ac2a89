#include "message_codes.h"
#include "message_style.h"
#include "plain_caption.h"
#include "program_icons.h"
#include "rows.h"
#include "twips.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
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

class tst_services final : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void twipsGoToTheNearestPixel() {
        for (const auto &[twips, dpi, pixels] : Rows<int, int, int>{
                 {"one pixel at 96 dpi", 15, 96, 1},
                 {"just below the half", 7, 96, 0},
                 {"just above the half", 8, 96, 1},
                 {"canvas width", 9345, 96, 623},
                 {"canvas height", 6430, 96, 429},
                 {"parked to the left", -75000, 96, -5000},
                 {"negative rounds to the nearest too", -8, 96, -1},
                 {"120 dpi", 9345, 120, 779},
             }) {
            QCOMPARE(TwipScale(dpi).toPixels(Twips{twips}).count, pixels);
        }
    }

    void captionLosesOnlyItsAccessKeyMarks() {
        for (const auto &[caption, plain] : Rows<QString, QString>{
                 {"no mark", u"Tx Power"_s, u"Tx Power"_s},
                 {"mark in front", u"&Tx Power"_s, u"Tx Power"_s},
                 {"doubled mark shows one", u"A && &B"_s, u"A & B"_s},
                 {"mark at the end", u"Tx&"_s, u"Tx"_s},
                 {"trailing blanks stay", u"Status    "_s, u"Status    "_s},
             }) {
            QCOMPARE(plainCaption(caption), plain);
        }
    }

    void styleFlagsGiveTheRightButtonsAndIcon() {
        using namespace MessageButton;

        for (const auto &[flags, buttons, icon] : Rows<int, int, int>{
                 {"nothing given is an error with OK", 0, kOk, MessageIcon::kError},
                 {"OK, cancel", 1, (kOk | kCancel), MessageIcon::kError},
                 {"abort, retry, ignore", 2, 112, MessageIcon::kError},
                 {"yes, no, cancel as a question", (3 | 32), 11, MessageIcon::kQuestion},
                 {"yes, no as a warning", (4 | 48), 3, MessageIcon::kWarning},
                 {"retry, cancel has no code", 5, kOk, MessageIcon::kError},
                 {"style 6 shows yes", 6, kYes, MessageIcon::kError},
                 {"style 7", 7, kOk, MessageIcon::kError},
                 {"critical", 16, kOk, MessageIcon::kError},
                 {"last value of an error", 31, kOk, MessageIcon::kError},
                 {"last value of a question", 47, kOk, MessageIcon::kQuestion},
                 {"last value of a warning", 63, kOk, MessageIcon::kWarning},
                 {"information", (64 | 4), 3, MessageIcon::kInformation},
                 {"second button flag is looked at with the whole value", (256 | 32), kOk, MessageIcon::kInformation},
             }) {
            QCOMPARE(int(ReturnNLSButtons(flags)), buttons);
            QCOMPARE(int(ReturnNLSDialogType(flags)), icon);
        }
    }

    void everyIconIsDrawnAndFollowsThePalette() {
        for (int icon = 0; icon <= int(ProgramIcon::kSplash); ++icon) {
            const bool coloured = icon == int(ProgramIcon::kAccept) || icon == int(ProgramIcon::kReject) ||
                                  icon == int(ProgramIcon::kTickGreen) || icon >= int(ProgramIcon::kApplication);
            const QPalette before = QGuiApplication::palette();
            QPalette palette = before;
            palette.setColor(QPalette::WindowText, Qt::black);
            QGuiApplication::setPalette(palette);
            const QImage onLight = drawn(ProgramIcon(icon), 24);
            palette.setColor(QPalette::WindowText, Qt::white);
            QGuiApplication::setPalette(palette);
            const QImage onDark = drawn(ProgramIcon(icon), 24);
            QGuiApplication::setPalette(before);
            QVERIFY2(coverage(onLight) > 1.0, qPrintable(QString::number(icon)));
            QVERIFY2((lightness(onDark) > lightness(onLight) + 1.0) != coloured, qPrintable(QString::number(icon)));
        }
    }

    void whiteTickIsFainterThanAnyOtherIcon() {
        const double white = coverage(drawn(ProgramIcon::kTickWhite, 24));
        for (int icon = 0; icon <= int(ProgramIcon::kApplication); ++icon) {
            if (icon != int(ProgramIcon::kTickWhite))
                QVERIFY(white < coverage(drawn(ProgramIcon(icon), 24)));
        }
    }
};

QTEST_MAIN(tst_services)
#include "tst_services.moc"
