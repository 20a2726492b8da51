#include "screens/platform/Dialogs.h"
#include "AnswerDialog.h"
#include "league/Failure.h"
#include "screens/main/frmWait.h"
#include "screens/platform/BoxIcon.h"
#include "screens/platform/CodePage.h"
#include "screens/platform/FusionLook.h"
#include "screens/platform/Palettes.h"
#include "screens/platform/QtPlatform.h"

#include <gmock/gmock.h>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

namespace dravik {
namespace {

class Dialogs : public ::testing::Test {
protected:
    // Shows a box of `kind`, answers it with `act` and returns its button.
    int Show(int kind, std::function<void(QMessageBox&)> act, const std::string& text = "Text")
    {
        OnDialog<QMessageBox>(std::move(act));
        return Desktop.MessageBox(text, kind, "Title");
    }
    int ShowAndClick(int kind, const char* name)
    {
        return Show(kind, [name](QMessageBox& shown) { Click(shown, name); });
    }
    int ShowAndPress(int kind, Qt::Key key)
    {
        return Show(kind, [key](QMessageBox& shown) { Press(shown, key); });
    }

    std::string Ask(const std::string& prompt, std::function<void(QDialog&)> act, const std::string& text = {})
    {
        OnDialog<QDialog>(std::move(act));
        return Desktop.InputBox(prompt, "Title", text);
    }

    QtPlatform Desktop;
};

std::vector<std::string> ButtonNames(const QMessageBox& shown)
{
    std::vector<std::string> names;
    for (const char* name : {"cmdOk", "cmdYes", "cmdNo", "cmdCancel"}) {
        if (shown.findChild<QPushButton*>(name) != nullptr)
            names.emplace_back(name);
    }
    EXPECT_EQ(static_cast<std::size_t>(shown.buttons().size()), names.size());
    return names;
}

TEST_F(Dialogs, EachKindHasItsIconAndButtons)
{
    struct Row {
        int Kind;
        QMessageBox::Icon Icon;
        std::vector<std::string> Buttons;
    };
    const std::vector<Row> rows{
        {16, QMessageBox::Critical, {"cmdOk"}},           {35, QMessageBox::Question, {"cmdYes", "cmdNo", "cmdCancel"}},
        {36, QMessageBox::Question, {"cmdYes", "cmdNo"}}, {48, QMessageBox::Warning, {"cmdOk"}},
        {64, QMessageBox::Information, {"cmdOk"}},
    };
    for (const Row& row : rows) {
        Show(row.Kind, [&row](QMessageBox& shown) {
            EXPECT_EQ(shown.icon(), row.Icon) << row.Kind;
            EXPECT_EQ(ButtonNames(shown), row.Buttons) << row.Kind;
            EXPECT_EQ(shown.objectName(), "msgBox");
            EXPECT_EQ(shown.windowTitle(), "Title");
            EXPECT_EQ(shown.text(), "Text");
            EXPECT_TRUE(shown.isModal());
            shown.reject();
        });
    }
}

TEST_F(Dialogs, EachButtonReturnsItsNumber)
{
    EXPECT_EQ(ShowAndClick(16, "cmdOk"), 1);
    EXPECT_EQ(ShowAndClick(48, "cmdOk"), 1);
    EXPECT_EQ(ShowAndClick(64, "cmdOk"), 1);
    EXPECT_EQ(ShowAndClick(36, "cmdYes"), 6);
    EXPECT_EQ(ShowAndClick(36, "cmdNo"), 7);
    EXPECT_EQ(ShowAndClick(35, "cmdYes"), 6);
    EXPECT_EQ(ShowAndClick(35, "cmdNo"), 7);
    EXPECT_EQ(ShowAndClick(35, "cmdCancel"), 2);
}

TEST_F(Dialogs, EscapeTakesBackWhatABoxAsks)
{
    EXPECT_EQ(ShowAndPress(16, Qt::Key_Escape), 1);
    EXPECT_EQ(ShowAndPress(36, Qt::Key_Escape), 7);
    EXPECT_EQ(ShowAndPress(35, Qt::Key_Escape), 2);
}

TEST_F(Dialogs, EnterTakesTheFirstButton)
{
    EXPECT_EQ(ShowAndPress(16, Qt::Key_Return), 1);
    EXPECT_EQ(ShowAndPress(36, Qt::Key_Return), 6);
    EXPECT_EQ(ShowAndPress(35, Qt::Key_Enter), 6);
}

TEST_F(Dialogs, ClosingABoxIsItsEscape)
{
    EXPECT_EQ(Show(36, [](QMessageBox& shown) { shown.close(); }), 7);
    EXPECT_EQ(Show(35, [](QMessageBox& shown) { shown.close(); }), 2);
    EXPECT_EQ(Show(48, [](QMessageBox& shown) { shown.close(); }), 1);
}

TEST_F(Dialogs, AKindThatIsNoneFails)
{
    try {
        Desktop.MessageBox("Text", 17, "Title");
        FAIL() << "A box was shown.";
    } catch (const Failure& failed) {
        EXPECT_EQ(failed.Number, 5);
    }
}

TEST_F(Dialogs, ANameWithMarkupOrAmpersandIsShownAsItStands)
{
    Show(
        64,
        [](QMessageBox& shown) {
            EXPECT_EQ(shown.textFormat(), Qt::PlainText);
            const auto* label = shown.findChild<QLabel*>("qt_msgbox_label");
            ASSERT_NE(label, nullptr);
            EXPECT_TRUE(label->isVisible());
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
            EXPECT_EQ(label->text(), "<b>Jack</b> & Jill &amp; Co");
            shown.accept();
        },
        "<b>Jack</b> & Jill &amp; Co");
}

TEST_F(Dialogs, LineBreaksOfTheProgramBecomeLines)
{
    Show(
        48,
        [](QMessageBox& shown) {
            EXPECT_EQ(shown.text(), "One\nTwo\n\nFour");
            shown.accept();
        },
        "One\r\nTwo\r\n\r\nFour");
}

TEST_F(Dialogs, AnEscapedPathIsShownWithItsRealLetters)
{
    Show(
        64,
        [](QMessageBox& shown) {
            EXPECT_EQ(shown.text(), QString::fromUtf8("Saved to /Équipe/Лёд.dvl"));
            shown.accept();
        },
        "Saved to " + PathToProgram(QString::fromUtf8("/Équipe/Лёд.dvl")));
}

TEST_F(Dialogs, AShortTextDoesNotScroll)
{
    std::string text;
    for (int line = 1; line <= 18; ++line)
        text += (line == 1 ? "" : "\r\n") + std::to_string(line);
    Show(
        48,
        [](QMessageBox& shown) {
            EXPECT_EQ(shown.findChild<QPlainTextEdit*>("txtMessage"), nullptr);
            EXPECT_TRUE(shown.screen()->availableGeometry().size().height() >= shown.height());
            shown.accept();
        },
        text);
}

std::string JudgesText(int lines)
{
    std::string text;
    for (int line = 1; line <= lines; ++line)
        text += "Harbour City Gulls - Line " + std::to_string(line) + " has no center!\r\n";
    return text;
}

TEST_F(Dialogs, ALongTextScrollsInABoxThatFitsTheScreen)
{
    for (const int lines : {19, 60, 400}) {
        Show(
            48,
            [lines](QMessageBox& shown) {
                const QSize screen = shown.screen()->availableGeometry().size();
                EXPECT_LE(shown.height(), screen.height());
                EXPECT_LE(shown.width(), screen.width());
                auto* area = shown.findChild<QPlainTextEdit*>("txtMessage");
                ASSERT_NE(area, nullptr);
                EXPECT_TRUE(area->isVisible());
                EXPECT_TRUE(area->isReadOnly());
                EXPECT_EQ(area->toPlainText(), QString::fromStdString(JudgesText(lines)).replace("\r\n", "\n"));
                EXPECT_EQ(area->verticalScrollBar()->value(), 0);
                EXPECT_EQ(shown.text(), area->toPlainText());
                // All of it can be reached, and the button stands below it.
                EXPECT_TRUE(lines < 60 || area->verticalScrollBar()->maximum() > 0);
                EXPECT_FALSE(shown.findChild<QLabel*>("qt_msgbox_label")->isVisible());
                EXPECT_GE(shown.findChild<QPushButton*>("cmdOk")->mapTo(&shown, QPoint()).y(),
                          area->geometry().bottom());
                shown.accept();
            },
            JudgesText(lines));
    }
}

TEST_F(Dialogs, TheKeysMoveALongTextAndStillAnswer)
{
    const auto answerWith = [this](Qt::Key key, int kind) {
        return Show(
            kind,
            [key](QMessageBox& shown) {
                auto* area = shown.findChild<QPlainTextEdit*>("txtMessage");
                ASSERT_NE(area, nullptr);
                EXPECT_EQ(shown.focusWidget(), area);
                Press(shown, Qt::Key_PageDown);
                EXPECT_GT(area->verticalScrollBar()->value(), 0);
                Press(shown, key);
            },
            JudgesText(60));
    };
    EXPECT_EQ(answerWith(Qt::Key_Return, 48), 1);
    EXPECT_EQ(answerWith(Qt::Key_Escape, 48), 1);
    EXPECT_EQ(answerWith(Qt::Key_Return, 36), 6);
    EXPECT_EQ(answerWith(Qt::Key_Escape, 36), 7);
}

TEST_F(Dialogs, AWordWiderThanABoxIsBrokenInTheArea)
{
    Show(
        64,
        [](QMessageBox& shown) {
            auto* area = shown.findChild<QPlainTextEdit*>("txtMessage");
            ASSERT_NE(area, nullptr);
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
            EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
            shown.accept();
        },
        "Saved to /" + std::string(300, 'x') + ".dvl");
}

TEST_F(Dialogs, ABoxBelongsToTheActiveWindowButNotToTheWaitScreen)
{
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Show(64, [&window](QMessageBox& shown) {
        EXPECT_EQ(shown.parentWidget(), &window);
        shown.accept();
    });
    frmWait wait(&window);
    wait.show();
    wait.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wait));
    Show(64, [&window](QMessageBox& shown) {
        EXPECT_EQ(shown.parentWidget(), &window);
        shown.accept();
    });
}

TEST_F(Dialogs, ADialogWithoutAWindowDoesNotEndTheProgram)
{
    int lastClosed = 0;
    const auto connection = QObject::connect(qApp, &QGuiApplication::lastWindowClosed, [&lastClosed] { ++lastClosed; });
    ShowAndClick(16, "cmdOk");
    Ask("Prompt", [](QDialog& dialog) { dialog.accept(); });
    QCoreApplication::processEvents();
    EXPECT_EQ(lastClosed, 0);
    QObject::disconnect(connection);
}

TEST_F(Dialogs, ABoxOverABoxBelongsToIt)
{
    int inner = 0;
    const int outer = Show(36, [&](QMessageBox& first) {
        inner = Show(35, [&first](QMessageBox& second) {
            EXPECT_EQ(second.parentWidget(), &first);
            Click(second, "cmdCancel");
        });
        Click(first, "cmdYes");
    });
    EXPECT_EQ(inner, 2);
    EXPECT_EQ(outer, 6);
}

TEST_F(Dialogs, SignsAreSharpAndTellKindsApart)
{
    QList<QImage> signs;
    for (const auto icon :
         {QMessageBox::Critical, QMessageBox::Warning, QMessageBox::Information, QMessageBox::Question}) {
        const QPixmap sign = BoxIcon(icon, QApplication::palette(), 48, 2);
        EXPECT_EQ(sign.size(), QSize(96, 96));
        EXPECT_EQ(sign.devicePixelRatio(), 2);
        EXPECT_FALSE(signs.contains(sign.toImage()));
        signs += sign.toImage();
    }
    EXPECT_TRUE(BoxIcon(QMessageBox::NoIcon, QApplication::palette(), 48, 2).isNull());
}

// The toolkit's own pictures are a few pixels wide; nothing but the desktop's signs may stand in their place.
TEST_F(Dialogs, ABoxOfEachKindShowsItsOwnSignUnderEveryLook)
{
#ifdef _WIN32
    GTEST_SKIP() << "The signs are the system's own.";
#endif
    const QScopeGuard restore([theme = QIcon::themeName()] { QIcon::setThemeName(theme); });
    QIcon::setThemeName("none");
    for (void (*use)() : {&UseDarkLook, &UseLightLook}) {
        use();
        for (const auto& [kind, icon] : {std::pair(16, QMessageBox::Critical), std::pair(36, QMessageBox::Question),
                                         std::pair(48, QMessageBox::Warning), std::pair(64, QMessageBox::Information)})
            Show(kind, [kind = kind, icon = icon](QMessageBox& shown) {
                const QPixmap pixmap = shown.findChild<QLabel*>("qt_msgboxex_icon_label")->pixmap();
                const int size = shown.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &shown);
                EXPECT_EQ(pixmap.toImage(), BoxIcon(icon, shown.palette(), size, shown.devicePixelRatioF()).toImage())
                    << kind;
                EXPECT_FALSE(pixmap.isNull());
                shown.reject();
            });
    }
}

// A style that puts pictures on the buttons of boxes, as a desktop may wish.
class PicturesOnButtons : public QProxyStyle {
public:
    PicturesOnButtons() : QProxyStyle("Fusion") {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

TEST_F(Dialogs, ButtonsHaveWordsAloneUnderTheProgramsLook)
{
    const auto pictures = [this] {
        int count = 0;
        const auto countOn = [&count](QDialog& shown) {
            for (const QPushButton* button : shown.findChildren<QPushButton*>())
                count += button->icon().isNull() ? 0 : 1;
            shown.reject();
        };
        Show(35, countOn);
        Ask("Enter New Name", countOn);
        return count;
    };
    QApplication::setStyle(new PicturesOnButtons);
    EXPECT_EQ(pictures(), 3 + 2);
    UseLightLook();
    auto* look = dynamic_cast<FusionLook*>(QApplication::style());
    ASSERT_NE(look, nullptr);
    look->setBaseStyle(new PicturesOnButtons);
    EXPECT_EQ(pictures(), 0);
    UseLightLook();
}

TEST_F(Dialogs, SignsOnTheAccentAreDrawnInItsOwnInk)
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, QColor("#ffd75e"));
    palette.setColor(QPalette::HighlightedText, QColor("#102030"));
    const auto dotOf = [&palette](QMessageBox::Icon icon, double height) {
        constexpr int size = 100;
        return BoxIcon(icon, palette, size, 1).toImage().pixelColor(size / 2, static_cast<int>(height * size));
    };
    EXPECT_EQ(dotOf(QMessageBox::Information, 0.6), palette.color(QPalette::HighlightedText));
    EXPECT_EQ(dotOf(QMessageBox::Question, 0.76), palette.color(QPalette::HighlightedText));
}

TEST_F(Dialogs, TheInputBoxReturnsWhatIsTyped)
{
    const std::string answer = Ask(
        "Enter New Name",
        [](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), "inputBox");
            EXPECT_EQ(dialog.windowTitle(), "Title");
            EXPECT_EQ(dialog.findChild<QLabel*>("lblPrompt")->text(), "Enter New Name");
            auto* edit = dialog.findChild<QLineEdit*>("txtAnswer");
            ASSERT_NE(edit, nullptr);
            EXPECT_EQ(edit->text(), QString::fromUtf8("Équipe"));
            EXPECT_EQ(edit->selectedText(), edit->text());
            EXPECT_EQ(edit->echoMode(), QLineEdit::Normal);
            EXPECT_EQ(dialog.focusWidget(), edit);
            QTest::keyClicks(edit, "Gulls");
            Click(dialog, "cmdOk");
        },
        "\xC9quipe");
    EXPECT_EQ(answer, "Gulls");
}

TEST_F(Dialogs, TheInputBoxHasItsLineBetweenThePromptAndTheButtonsFromSideToSide)
{
    Ask("Enter New Name", [](QDialog& dialog) {
        const auto placeOf = [&dialog](const char* name) {
            const auto* part = dialog.findChild<QWidget*>(name);
            EXPECT_NE(part, nullptr) << name;
            return part == nullptr ? QRect() : QRect(part->mapTo(&dialog, QPoint()), part->size());
        };
        const QRect prompt = placeOf("lblPrompt");
        const QRect line = placeOf("txtAnswer");
        const QRect ok = placeOf("cmdOk");
        EXPECT_GT(line.top(), prompt.bottom());
        EXPECT_LT(line.bottom(), ok.top());
        EXPECT_EQ(line.left(), prompt.left());
        EXPECT_EQ(line.right(), dialog.rect().right() - line.left());
        Click(dialog, "cmdOk");
    });
}

TEST_F(Dialogs, EnterAcceptsTheInputAndKeepsTheDefault)
{
    EXPECT_EQ(Ask(
                  "Prompt", [](QDialog& dialog) { Press(dialog, Qt::Key_Return); }, "12"),
              "12");
}

TEST_F(Dialogs, CancelOfTheInputGivesTheEmptyText)
{
    EXPECT_EQ(Ask(
                  "Prompt", [](QDialog& dialog) { Click(dialog, "cmdCancel"); }, "12"),
              "");
    EXPECT_EQ(Ask(
                  "Prompt", [](QDialog& dialog) { Press(dialog, Qt::Key_Escape); }, "12"),
              "");
    EXPECT_EQ(Ask(
                  "Prompt", [](QDialog& dialog) { dialog.close(); }, "12"),
              "");
}

TEST_F(Dialogs, APasswordIsHidden)
{
    for (const char* prompt : {"Password Required!", "Enter New Password", "Enter New Password Again to Verify"}) {
        const std::string answer = Ask(prompt, [prompt](QDialog& dialog) {
            auto* edit = dialog.findChild<QLineEdit*>("txtAnswer");
            EXPECT_EQ(edit->echoMode(), QLineEdit::Password) << prompt;
            QTest::keyClicks(edit, "se cret");
            EXPECT_FALSE(edit->displayText().contains('s'));
            Click(dialog, "cmdOk");
        });
        EXPECT_EQ(answer, "se cret");
    }
}

TEST_F(Dialogs, APromptWithMarkupOrAmpersandIsShownAsItStands)
{
    Ask("Price for <i>A</i> & B\r\nin all", [](QDialog& dialog) {
        const auto* label = dialog.findChild<QLabel*>("lblPrompt");
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_EQ(label->text(), "Price for <i>A</i> & B\nin all");
        dialog.reject();
    });
}

TEST_F(Dialogs, TypedLettersOutsideTheCodePageBecomeQuestionMarks)
{
    const std::string answer = Ask("Prompt", [](QDialog& dialog) {
        dialog.findChild<QLineEdit*>("txtAnswer")->setText(QString::fromUtf8("Évék Ж"));
        dialog.accept();
    });
    EXPECT_EQ(answer, "\xC9v\xE9k ?");
}

TEST_F(Dialogs, OfPastedLinesTheFirstIsTheAnswer)
{
    const std::string answer = Ask("Password Required!", [](QDialog& dialog) {
        dialog.findChild<QLineEdit*>("txtAnswer")->insert("secret\r\nand more");
        dialog.accept();
    });
    EXPECT_EQ(answer, "secret");
}

} // namespace
} // namespace dravik
