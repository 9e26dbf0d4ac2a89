#include "run_time_error.h"

#include <utility>

RunTimeError::RunTimeError(qint32 number, QString source, QString description)
    : Number(number), Source(std::move(source)), Description(std::move(description)), mWhat(Description.toStdString()) {
}

const char *RunTimeError::what() const noexcept { return mWhat.c_str(); }
