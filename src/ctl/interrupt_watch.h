#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

// While it lives, Ctrl+C calls handler from the event loop and does not end the process.
class InterruptWatch final : public QObject {
    Q_OBJECT

  public:
    explicit InterruptWatch(std::function<void()> handler);
    ~InterruptWatch() override;

  private:
    void arrived();

    std::function<void()> mHandler;
    int mDescriptor;
    QSocketNotifier *mNotifier;
};
