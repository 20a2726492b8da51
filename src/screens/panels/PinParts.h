#pragma once

#include "league/PersonId.h"
#include "screens/panels/ElidedLabel.h"

#include <optional>
#include <QBoxLayout>
#include <QPointer>
#include <QToolButton>

// What pins people where their ratings stand, and tells who is pinned.
namespace dravik {

// The command that pins whoever is shown, or lets him go. It stands beside his name, takes no focus, keeps its place and is not
// seen where nobody is shown.
class PinCommand : public QToolButton {
public:
    explicit PinCommand(QWidget* parent);

    void SetPerson(std::optional<PersonId> who);
    [[nodiscard]] std::optional<PersonId> Person() const { return person; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

private:
    void ShowState();

    std::optional<PersonId> person;
};

// The quiet line below ratings that says whom they are held against, behind a piece of his bar. It takes no room where there is
// nobody.
class PinLine : public ElidedLabel {
public:
    explicit PinLine(QWidget* parent);

    void Tell(const QString& name);
    // The line beside a command that lets all go who are pinned. That takes no focus, as its key does the same, and is seen with the
    // line.
    QHBoxLayout* WithLetGo();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<QToolButton> letGo;
};

// The keys that pin somebody and let all go, as sheets and menus tell them.
inline constexpr const char* PinKey = "Ctrl+M";
inline constexpr const char* LetGoKey = "Ctrl+Shift+P";

// Has that key let all go in a window.
void LetGoByKey(QWidget& window);

// Tells what became of a pin beside `anchor` in `place`, seen and for a screen reader, as it is written.
void TellOfPin(QWidget& place, const QRect& anchor, const QString& outcome);

} // namespace dravik
