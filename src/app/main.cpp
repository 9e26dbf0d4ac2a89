#include "common_error_handler.h"
#include "main_application.h"
#include "main_program.h"
#include "string_utilities.h"

int main(int argc, char **argv) {
    ErrorReport errors(IsExecutingFromIDE());
    const MainApplication application(argc, argv, errors);
    MainProgram program(errors, QApplication::arguments().mid(1));
    return program.Start() ? program.Run() : 1;
}
