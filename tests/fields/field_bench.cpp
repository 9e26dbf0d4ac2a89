#include "field_bench.h"

#include "window_input.h"

#include <utility>

using namespace Qt::StringLiterals;

FieldBench::FieldBench() { window.resize(700, 500); }

void FieldBench::enter(QWidget &field, const QString &name) {
    constexpr qint32 kRowHeight = 500;
    constexpr qint32 kWidth = 6000;
    const auto row = qint32(mHosts.size());
    auto host = std::make_unique<FieldHost>(field, FieldHost::Place{name, u"fld"_s, nullptr, row});
    host->SetGeometry({{100}, {100 + row * kRowHeight}, {kWidth}, {400}});
    auto listener = std::make_unique<RecordingHost>(name, heard);
    host->SetListener(listener.get());
    mHosts.emplace(name, std::move(host));
    mListeners.emplace(name, std::move(listener));
}

QStringList FieldBench::takeHeard() { return std::exchange(heard, {}); }

void FieldBench::show() {
    WindowInput::activate(window);
    heard.clear();
}
