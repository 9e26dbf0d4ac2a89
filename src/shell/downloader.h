#pragma once

#include <QLocalSocket>
#include <QString>

// The separate program that loads a radio's firmware. It listens on a local socket and takes commands as lines of text.
class DownloadManager {
  public:
    virtual ~DownloadManager() = default;
    // Connected to a running downloader.
    [[nodiscard]] virtual bool IsAttached() const = 0;
    // Connects to one that runs already.
    [[nodiscard]] virtual bool Attach() = 0;
    // Starts one and connects to it, within three seconds.
    [[nodiscard]] virtual bool Create() = 0;
    virtual void SetRadioType(int type) = 0;
    virtual void SetPort(const QString &number, bool show) = 0;
};

class LocalDownloader final : public DownloadManager {
  public:
    // folder: where the program lies; "" for this program's folder (in a development run: the tree's folder of extras).
    explicit LocalDownloader(QString folder = {});

    [[nodiscard]] bool IsAttached() const override;
    [[nodiscard]] bool Attach() override;
    [[nodiscard]] bool Create() override;
    void SetRadioType(int type) override;
    void SetPort(const QString &number, bool show) override;

  private:
    [[nodiscard]] QString program() const;
    void send(const QByteArray &line);

    QString mFolder;
    QLocalSocket mSocket;
};
