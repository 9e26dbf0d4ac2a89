#include "main_application.h"

#include "common_error_handler.h"

MainApplication::MainApplication(int &argc, char **argv, ErrorReport &errors)
    : QApplication(argc, argv), mErrors(errors) {}

bool MainApplication::notify(QObject *receiver, QEvent *event) try { return QApplication::notify(receiver, event); }
ERROR_TAIL(false)
