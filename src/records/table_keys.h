#pragma once

class QKeyEvent;
class TDBGrid;

// What the keys do in a table: the cursor's keys, F2 and typing to edit, Enter to commit and go down, F4 and Alt+Down
// for the list. While a cell is edited the keys that move within its text stay with it.
class TableKeys {
  public:
    // The table outlives this.
    explicit TableKeys(TDBGrid &table) : mTable(table) {}

    // True: the key is done with.
    [[nodiscard]] bool take(QKeyEvent &key);
    // The character begins an edit of the current cell and replaces its content. False: it is no character.
    bool typeIntoCell(QKeyEvent &key);

  private:
    struct Key;
    static const Key kKeys[];

    void stepRows(int rows);
    void stepColumns(int columns);
    [[nodiscard]] int page() const;
    void up() { stepRows(-1); }
    void down() { stepRows(1); }
    void pageUp() { stepRows(-page()); }
    void pageDown() { stepRows(page()); }
    void left() { stepColumns(-1); }
    void right() { stepColumns(1); }
    void home();
    void end();
    void enter();
    void edit();
    void empty();
    void openList();
    void toggle();

    TDBGrid &mTable;
};
