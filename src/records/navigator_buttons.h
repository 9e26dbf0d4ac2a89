#pragma once

// What a grid without an add button asks of the navigator of its records.
class NavigatorButtons {
  public:
    virtual ~NavigatorButtons() = default;
    // Whether the button is there.
    [[nodiscard]] virtual bool ButtonAdd() const = 0;
};
