#include "file_problem.h"

#include "translation.h"

#include <utility>

FileProblem::FileProblem(QString prompt, QStringList parameters)
    : RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("File"), Translation::Fill(prompt, parameters)),
      Prompt(std::move(prompt)), Parameters(std::move(parameters)) {}
