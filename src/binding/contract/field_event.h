#pragma once

#include "run_time_error.h"

#include <QString>

#include <any>
#include <tuple>
#include <type_traits>
#include <typeindex>
#include <utility>
#include <vector>

// One positional parameter of a field's event: a value, or a reference to the raising control's variable, through which
// a handler's answer travels back.
class Q_DECL_EXPORT EventParameter {
  public:
    template <class T>
    static EventParameter fromValue(T &&value) {
        EventParameter parameter;
        parameter.mValue = std::forward<T>(value);
        return parameter;
    }
    template <class T>
    static EventParameter fromReference(T &variable) {
        EventParameter parameter;
        parameter.mReference = &variable;
        parameter.mReferenceType = typeid(T);
        return parameter;
    }
    // T: a copy of the value or of the variable. T &: the variable itself. Another type raises error 13.
    template <class T>
    [[nodiscard]] T get() const {
        using Plain = std::remove_reference_t<T>;
        if (mReference != nullptr && mReferenceType == std::type_index(typeid(Plain)))
            return *static_cast<Plain *>(mReference);
        if constexpr (!std::is_reference_v<T>) {
            if (const Plain *value = std::any_cast<Plain>(&mValue))
                return *value;
        }
        raiseMismatch();
    }

  private:
    [[noreturn]] static void raiseMismatch();

    std::any mValue;
    void *mReference = nullptr;
    std::type_index mReferenceType = typeid(void);
};

template <class T>
[[nodiscard]] EventParameter in(T &&value) {
    return EventParameter::fromValue(std::decay_t<T>(std::forward<T>(value)));
}
template <class T>
[[nodiscard]] EventParameter out(T &variable) {
    return EventParameter::fromReference(variable);
}

// A field's event: a name and positional parameters. Position 0 is the first parameter named in the event's row of the
// routing table of clsControlItem.
class Q_DECL_EXPORT FieldEvent {
  public:
    template <class... Parameters>
    explicit FieldEvent(QString name, Parameters &&...parameters)
        : mName(std::move(name)), mParameters{std::forward<Parameters>(parameters)...} {}

    [[nodiscard]] const QString &name() const { return mName; }

    // All parameters in one line: const auto [uiid, position, accepted] = event.unpack<QString, qint32, bool &>();
    // Raises error 9 when there are fewer than asked for, 13 when a type differs.
    template <class... Types>
    [[nodiscard]] std::tuple<Types...> unpack() const {
        return unpackAt<Types...>(std::index_sequence_for<Types...>{});
    }

    // One parameter alone, with the same errors.
    template <class T>
    [[nodiscard]] T parameter(std::size_t position) const {
        return parameterAt(position).template get<T>();
    }

  private:
    template <class... Types, std::size_t... Positions>
    [[nodiscard]] std::tuple<Types...> unpackAt(std::index_sequence<Positions...> /*positions*/) const {
        return std::tuple<Types...>(parameterAt(Positions).template get<Types>()...);
    }
    [[nodiscard]] const EventParameter &parameterAt(std::size_t position) const;

    QString mName;
    std::vector<EventParameter> mParameters;
};
