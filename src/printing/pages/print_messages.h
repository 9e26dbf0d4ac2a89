#pragma once

class MessageBoxes;

// What the user is told when printing fails.
namespace PrintMessages {
inline constexpr const char *kNoPrinters = "There are no printers installed.";
inline constexpr const char *kNotSetUp = "The printer is set up incorrectly.";
inline constexpr const char *kNoDefaultPrinter = "A default printer does not exist.";
inline constexpr const char *kNoCommunication = "An error has occurred attempting to communicate with the printer.";
inline constexpr const char *kCancelled = "An error has occurred whilst attempting to print report. The print has been "
                                          "cancelled. Please check printer settings.";

// A translated box under the title "Print Error".
void tell(MessageBoxes &boxes, const char *message);
} // namespace PrintMessages
