#include "call_script.h"

#include "value_text.h"

#include <utility>

CallScript::Address &CallScript::Address::answers(const QVariant &answer) {
    mAnswer = answer;
    return *this;
}

CallScript::Address &CallScript::Address::answersUndefined() { return answers(ValueText::undefined()); }

CallScript::Address &CallScript::Address::raises(const RunTimeError &error) {
    mError = error;
    return *this;
}

CallScript::Address &CallScript::Address::runs(std::function<void()> action) {
    mAction = std::move(action);
    return *this;
}

void CallScript::Address::reset() { *this = Address(); }

CallScript::Address &CallScript::when(const QString &operation, const QString &uiid) {
    return mAddresses[operation + u'(' + uiid];
}

CallScript::Address &CallScript::when(const QString &operation, const QString &uiid, qint32 recordNr) {
    return mAddresses[operation + u'(' + uiid + u',' + QString::number(recordNr)];
}

CallScript::Address *CallScript::find(const QString &operation, const QVariantList &arguments,
                                      const std::function<bool(const Address &)> &wanted) {
    QStringList keys{operation};
    for (qsizetype count = 1; count <= qMin(arguments.size(), qsizetype(2)); ++count)
        keys.prepend(keys.first() + (count == 1 ? u'(' : u',') + CallLog::textOf(arguments.at(count - 1)));
    for (const QString &key : keys) {
        const auto found = mAddresses.find(key);
        if (found != mAddresses.end() && wanted(found->second))
            return &found->second;
    }
    return nullptr;
}

QVariant CallScript::play(const QString &operation, const QVariantList &arguments, const QVariant &fallback) {
    mLog.add(operation, arguments);
    const auto hasAction = [](const Address &address) { return address.mAction && !address.mRunning; };
    if (Address *const address = find(operation, arguments, hasAction)) {
        const auto action = address->mAction; // a copy, since the action may script this address anew
        address->mRunning = true;
        action();
        address->mRunning = false;
    }
    const auto hasError = [](const Address &address) { return address.mError.has_value(); };
    if (const Address *const address = find(operation, arguments, hasError))
        throw RunTimeError(*address->mError);
    const auto hasAnswer = [](const Address &address) { return address.mAnswer.has_value(); };
    const Address *const address = find(operation, arguments, hasAnswer);
    return address == nullptr ? fallback : *address->mAnswer;
}
