#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class PageSink;
class QWidget;

// The user's choice of a printer and its settings, in the numbers of a device mode.
struct PrinterChoice {
    QString DeviceName; // upper case; "" for none
    qint16 Copies = 1;
    qint16 Duplex = 1;        // 1 one-sided, 2 along the long side, 3 along the short side
    qint16 Orientation = 1;   // 1 upright, 2 across
    qint16 PaperSize = 1;     // the number of a paper format; none where it is not positive
    qint16 PrintQuality = -4; // dots an inch; -1 (draft) to -4 (high) where negative
    qint16 Color = 1;         // 1 black and white, 2 colour
    qint16 Collate = 1;       // 0 no, 1 yes
    qint16 TTOption = 3;      // kept, has no meaning here
    qint32 fields = -25599;   // DeviceField: which of them count
};

namespace DeviceField {
inline constexpr qint32 kOrientation = 0x1;
inline constexpr qint32 kPaperSize = 0x2;
inline constexpr qint32 kCopies = 0x100;
inline constexpr qint32 kPrintQuality = 0x400;
inline constexpr qint32 kColor = 0x800;
inline constexpr qint32 kDuplex = 0x1000;
inline constexpr qint32 kCollate = 0x8000;
inline constexpr qint32 kAll = kOrientation | kPaperSize | kCopies | kPrintQuality | kColor | kDuplex | kCollate;
} // namespace DeviceField

// Flags of the print dialog.
namespace PrintDialogFlags {
inline constexpr qint32 kDefault = 12;
inline constexpr qint32 kReport = 1048580; // no printing to a file, no selection
} // namespace PrintDialogFlags

// The printers of the system, one of which is the current one. A file that stands in for a printer counts as one when
// it comes to printing.
class PrinterPlatform {
  public:
    virtual ~PrinterPlatform() = default;

    [[nodiscard]] virtual QStringList Printers() const = 0;
    // "" where the system names none.
    [[nodiscard]] virtual QString DefaultPrinter() const = 0;
    // The system's default at first.
    [[nodiscard]] virtual QString CurrentPrinter() const = 0;
    virtual void MakeCurrent(const QString &printer) = 0;
    // Copies, duplex, orientation, paper size and print quality, for all further documents.
    virtual void Apply(const PrinterChoice &choice) = 0;
    // For one document on the current printer. Null where there is nothing to print on.
    [[nodiscard]] virtual std::unique_ptr<PageSink> OpenSink() = 0;
    // The system's print dialog, starting with the choice. False when cancelled; the choice is then untouched. Raises
    // error 482 where there is no printer.
    virtual bool PrintDlg(QWidget *window, qint32 flags, PrinterChoice &choice) = 0;
    // The font family of the main window.
    [[nodiscard]] virtual QString WindowFont() const = 0;
    // The user's locale is Chinese, China.
    [[nodiscard]] virtual bool IsChineseLocale() const = 0;
};
