#pragma once

#include <QTextBrowser>

// Shows the pages of the help in the colours of the palette. A page that leads on to another place does so at once; an
// address of the web opens in the user's browser.
class HelpBrowser final : public QTextBrowser {
    Q_OBJECT
  public:
    explicit HelpBrowser(QWidget *parent);

    QVariant loadResource(int type, const QUrl &name) override;
    // Where a page leads on to; the page itself for most.
    [[nodiscard]] static QUrl forwarded(const QUrl &page);

  protected:
    void doSetSource(const QUrl &url, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent *event) override;

  private:
    [[nodiscard]] QString styleSheetOfPalette() const;
};
