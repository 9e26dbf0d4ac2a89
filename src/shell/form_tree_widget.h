#pragma once

#include <QTreeWidget>

class FileDropTarget;

// Node colours carry state; the numbers are tested, the painting takes colours of the palette.
namespace NodeColour {
inline constexpr quint32 kMenuText = 0x80000007;     // available
inline constexpr quint32 kButtonShadow = 0x80000010; // available, above the access level: drawn dim, still opens
inline constexpr quint32 kButtonFace = 0x8000000F;   // unavailable: refused with a message
} // namespace NodeColour

// The tree of the forms. A click or double click on a node and Enter raise NodeChosen once; arrow keys and selection
// by code raise nothing.
class FormTreeWidget final : public QTreeWidget {
    Q_OBJECT

  public:
    static constexpr int kColourRole = Qt::UserRole + 1;

    explicit FormTreeWidget(QWidget *parent);
    // Files dropped on the tree go there; null: none are taken. Not owned.
    void SetFileDropTarget(FileDropTarget *target);
    // A line over the nodes that says what they belong to; empty: none.
    void SetHeading(const QString &text);

  Q_SIGNALS:
    // FormTree_NodeClick, FormTree_DblClick and FormTree_KeyPress with Enter.
    void NodeChosen();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

  private:
    QTreeWidgetItem *mPressed = nullptr;
    FileDropTarget *mFileDropTarget = nullptr;
};
