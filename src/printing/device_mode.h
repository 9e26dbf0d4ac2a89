#pragma once

class QPrinter;
struct PrinterChoice;

// Between the numbers of a printer choice and a printer of the toolkit.
namespace DeviceMode {
// Only the settings whose field bit is set.
void apply(const PrinterChoice &choice, QPrinter &printer);
// Name, settings and field bits as the printer has them now.
[[nodiscard]] PrinterChoice of(const QPrinter &printer);
} // namespace DeviceMode
