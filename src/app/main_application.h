#pragma once

#include <QApplication>

class ErrorReport;

// The last net: an exception that no error tail has caught is reported like any other.
class MainApplication final : public QApplication {
  public:
    MainApplication(int &argc, char **argv, ErrorReport &errors);
    bool notify(QObject *receiver, QEvent *event) override;

  private:
    ErrorReport &mErrors;
};
