#include "machine/InputCheck.h"

#include "support/FailingBoxes.h"
#include "support/Routines.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Box NoValidInput{48, "No Valid Input!"};
const Box OnlyNumbers{48, "Only numbers are allowed in that textbox!"};
const Box OnlyLetters{48, "Only letters and spaces are allowed in that textbox!"};
const Box OnlyBoth{48, "Only numbers, letters and spaces are allowed in that textbox!"};

class InputCheckTest : public SmallLeague {
protected:
    // The text is taken, and nobody hears of it.
    void Taken(const std::string& text, InputMode mode, bool required)
    {
        EXPECT_TRUE(CheckInput(text, mode, required)) << text;
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty()) << text;
    }

    void Refused(const std::string& text, InputMode mode, bool required, const Box& box)
    {
        EXPECT_FALSE(CheckInput(text, mode, required)) << text;
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(box)) << text;
    }

    void Judged(const std::string& text, InputMode mode, bool required, const Box* box)
    {
        if (box == nullptr)
            Taken(text, mode, required);
        else
            Refused(text, mode, required, *box);
    }
};

TEST_F(InputCheckTest, AnEmptyTextAndALoneMinusAreNoNumber)
{
    for (const bool required : {false, true}) {
        Refused("", InputMode::Numbers, required, NoValidInput);
        Refused("-", InputMode::Numbers, required, NoValidInput);
    }
}

TEST_F(InputCheckTest, TheMinusOfANumberStandsAnywhereAndAnyNumberOfTimes)
{
    for (const char* text : {"-5", "5-", "1-2", "--5-", "-1-2-3-"})
        Taken(text, InputMode::Numbers, true);
}

TEST_F(InputCheckTest, ALetterBehindADigitAllowsNumbersOnly)
{
    Refused("12a", InputMode::Numbers, true, OnlyNumbers);
    Refused("12a", InputMode::Numbers, false, OnlyNumbers);
}

TEST_F(InputCheckTest, ALetterBeforeAnyDigitIsNoValidInputSinceTheWalkStopsThere)
{
    Refused("a12", InputMode::Numbers, true, NoValidInput);
    Refused("a12", InputMode::Numbers, false, NoValidInput);
}

TEST_F(InputCheckTest, BlanksAloneAreNoRequiredLettersButGoodOtherwise)
{
    Refused("   ", InputMode::Letters, true, NoValidInput);
    Taken("   ", InputMode::Letters, false);
}

TEST_F(InputCheckTest, DigitsAloneAreNotEnoughForARequiredName)
{
    Refused("123", InputMode::NumbersAndLetters, true, NoValidInput);
    Taken("123", InputMode::NumbersAndLetters, false);
    Taken("123a", InputMode::NumbersAndLetters, true);
}

TEST_F(InputCheckTest, TheApostropheTheAsteriskAndAccentedLettersAreAccepted)
{
    for (const InputMode mode : {InputMode::Letters, InputMode::NumbersAndLetters}) {
        Taken("O'Neil*", mode, true);
        Taken("Ren\xE9 \xC9mile", mode, true);
        Taken("'*\xE9", mode, false);
    }
}

TEST_F(InputCheckTest, AccentedLettersAloneAreNotEnoughForARequiredName)
{
    for (const InputMode mode : {InputMode::Letters, InputMode::NumbersAndLetters})
        Refused("\xC9\xE9", mode, true, NoValidInput);
}

TEST_F(InputCheckTest, AnEmptyTextIsTakenWhereNothingIsRequired)
{
    for (const InputMode mode : {InputMode::Letters, InputMode::NumbersAndLetters}) {
        Taken("", mode, false);
        Refused("", mode, true, NoValidInput);
    }
}

TEST_F(InputCheckTest, ABracketCountsAsInputThoughItIsRefused)
{
    for (const char* text : {"[", "\\", "]", "^", "_", "`"}) {
        Refused(text, InputMode::Letters, true, OnlyLetters);
        Refused(text, InputMode::NumbersAndLetters, true, OnlyBoth);
    }
    Refused("{", InputMode::Letters, true, NoValidInput);
    Refused("@", InputMode::NumbersAndLetters, true, NoValidInput);
}

TEST_F(InputCheckTest, TheWalkStopsAtTheFirstRefusedCharacterBeforeALaterLetter)
{
    Refused("!abc", InputMode::Letters, true, NoValidInput);
    Refused("!abc", InputMode::NumbersAndLetters, true, NoValidInput);
    Refused("!abc", InputMode::Letters, false, OnlyLetters);
    Refused("a!bc", InputMode::NumbersAndLetters, true, OnlyBoth);
}

TEST_F(InputCheckTest, DigitsAreRefusedAmongLetters)
{
    Refused("ab1", InputMode::Letters, true, OnlyLetters);
    Taken("ab1", InputMode::NumbersAndLetters, true);
}

TEST_F(InputCheckTest, SilentTakesEveryTextWithoutAWord)
{
    for (const InputMode mode : {InputMode::Numbers, InputMode::Letters, InputMode::NumbersAndLetters}) {
        for (const char* text : {"", "-", "a12", "12a", "!", "[", "abc"})
            EXPECT_TRUE(CheckInput(text, mode, true, true)) << text;
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(InputCheckTest, AModeAboveTheThreeTakesEverything)
{
    for (const int mode : {3, 4, 255}) {
        for (const char* text : {"", "!", "[", "\x01"})
            Taken(text, static_cast<InputMode>(mode), true);
    }
}

// Says of each character what it is in a mode, in the form of a reading of its own.
struct Meaning {
    bool Accepted;
    bool Proper;
};

Meaning MeaningOf(int code, InputMode mode)
{
    const bool digit = code >= 48 && code <= 57;
    if (mode == InputMode::Numbers)
        return {digit || code == 45, digit};
    const bool letter = (code >= 65 && code <= 90) || (code >= 97 && code <= 122);
    const bool between = code > 90 && code < 97;
    const bool sign = code == 32 || code == 39 || code == 42 || code == 45 || code == 46 || code == 47;
    const bool accented = code >= 192 && code <= 253;
    return {letter || sign || accented || (digit && mode == InputMode::NumbersAndLetters), letter || between};
}

TEST_F(InputCheckTest, All256CharactersStandInEachModeAsToldAloneAndBehindAProperOne)
{
    const Box* only[] = {&OnlyNumbers, &OnlyLetters, &OnlyBoth};
    for (const InputMode mode : {InputMode::Numbers, InputMode::Letters, InputMode::NumbersAndLetters}) {
        const Box* refusal = only[static_cast<int>(mode)];
        for (int code = 0; code < 256; ++code) {
            SCOPED_TRACE(code);
            const Meaning meaning = MeaningOf(code, mode);
            const Box* judgement = meaning.Accepted ? nullptr : refusal;
            const std::string alone(1, static_cast<char>(code));
            for (const bool required : {false, true}) {
                const bool missing = !meaning.Proper && (required || mode == InputMode::Numbers);
                Judged(alone, mode, required, missing ? &NoValidInput : judgement);
                Judged((mode == InputMode::Numbers ? "7" : "g") + alone, mode, required, judgement);
            }
        }
    }
}

TEST_F(InputCheckTest, TheCharacters254And255AreRefusedAsIsEverythingFrom128To191)
{
    for (const int code : {128, 160, 191, 254, 255}) {
        Refused("g" + std::string(1, static_cast<char>(code)), InputMode::Letters, false, OnlyLetters);
        Refused("g" + std::string(1, static_cast<char>(code)), InputMode::NumbersAndLetters, false, OnlyBoth);
    }
}

// A machine whose first message box cannot be shown.
TEST_F(InputCheckTest, AFailureOfTheCheckIsToldWithoutAnExclamationMarkAndTakesNothing)
{
    FailingBoxes machine(1);
    UseMachine(machine);
    EXPECT_FALSE(CheckInput("!", InputMode::Letters, true));
    EXPECT_THAT(machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in CheckInput"}));
}

} // namespace
} // namespace dravik
