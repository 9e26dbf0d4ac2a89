#pragma once

#include <QString>

#include <functional>

class ErrorReport;
class MessageBoxes;
class Transformer;

// The support form and the home page, in the user's browser.
class HelpWebPages {
  public:
    // open(address): true if a browser was started; empty: the system's.
    HelpWebPages(Transformer &transformer, MessageBoxes &boxes, ErrorReport &errors,
                 std::function<bool(const QString &)> open = {});

    void mnuMobilesSupport_Click();
    // The address of the setting "Website".
    void mnuHomePage_Click();

  private:
    void open(const QString &address);

    Transformer &mTransformer;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
    std::function<bool(const QString &)> mOpen;
};
