#pragma once

#include "run_time_error.h"

#include <QStringList>

// A file that cannot be read, understood or written. Prompt is an English sentence with the placeholders %0:S, %1:S ...
// that Parameters fill; %0:S is always the file's path. Description is the filled sentence.
class FileProblem : public RunTimeError {
  public:
    FileProblem(QString prompt, QStringList parameters);

    QString Prompt;
    QStringList Parameters;
};
