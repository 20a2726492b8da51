#pragma once

#include "screens/panels/LeavingBox.h"

#include <QPlainTextEdit>

namespace dravik {

// A text box that shows its one line broken over several. It holds no line breaks: Enter makes none, and one that is pasted
// becomes a blank. The tab key leaves it. Whoever comes to it finds its content selected, as in a box of one line.
class EditArea : public QPlainTextEdit, public LeavingBox {
    Q_OBJECT
public:
    explicit EditArea(QWidget* parent = nullptr);

    // Makes the area high enough for that many lines.
    void SetLines(int lines);

signals:
    void LostFocus();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void Act() override { emit LostFocus(); }
    void Focus() override;

private:
    bool selectsAtRelease = false; // the mouse brought the focus, and its button is still down
};

} // namespace dravik
