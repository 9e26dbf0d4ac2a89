#pragma once

#include <QString>
#include <QStringList>

// The part of a page that a device can print on, in centimetres.
struct PageFrame {
    double offsetX = 0; // of the printable area in the full page
    double offsetY = 0;
    double width = 0; // of the printable area
    double height = 0;
};

// What a report is printed on: a printer, a PDF file, a text, a test. All lengths are in centimetres, all positions
// from the upper left corner of the printable area.
//
// Raises error 484 where the device is not set up, 482 for every other failure of the device.
class PageSink {
  public:
    virtual ~PageSink() = default;

    // Families that the device can print in.
    [[nodiscard]] virtual QStringList Fonts() const = 0;
    [[nodiscard]] virtual PageFrame Frame() const = 0;
    // 10 point, upright, not underlined; for what is measured and printed from now on.
    virtual void SetFont(const QString &family, bool bold) = 0;
    [[nodiscard]] virtual double TextWidth(const QString &text) const = 0;
    [[nodiscard]] virtual double TextHeight() const = 0;

    // The first page stands after it.
    virtual void BeginDocument() = 0;
    // x and y of the text's upper left corner.
    virtual void PrintText(double x, double y, const QString &text) = 0;
    // A thin solid line.
    virtual void PrintRule(double left, double right, double y) = 0;
    virtual void NewPage() = 0;
    virtual void EndDocument() = 0;
    // Ends the document without printing or keeping it, as far as the device allows. Never raises.
    virtual void CancelDocument() = 0;
};
