#pragma once

#include <QString>
#include <QtGlobal>

#include <exception>
#include <string>

// The one error object of the system. An expected refusal is a bool and never an error; everything else that goes
// wrong travels as this exception up to the error tail of the procedure that met it.
class Q_DECL_EXPORT RunTimeError : public std::exception {
  public:
    RunTimeError(qint32 number, QString source, QString description);

    qint32 Number;
    QString Source;
    QString Description;

    [[nodiscard]] const char *what() const noexcept override;

  private:
    std::string mWhat;
};

// Numbers that some handler tests for. Others are only shown.
namespace ErrorNumber {
inline constexpr qint32 kBadArgument = 5;
inline constexpr qint32 kIndexOutOfRange = 9;
inline constexpr qint32 kConversion = 13;
inline constexpr qint32 kMissingObject = 91;
inline constexpr qint32 kUnableToUnload = 365;
inline constexpr qint32 kReadOnlyAtRunTime = 382;
inline constexpr qint32 kNotAtRunTime = 387;
inline constexpr qint32 kPrinter = 482;
inline constexpr qint32 kPrinterSetup = 484;
inline constexpr qint32 kOutOfMemory = 31001;
inline constexpr qint32 kCollectionIndex = 35600;
inline constexpr qint32 kCollectionKey = 35601;
} // namespace ErrorNumber
