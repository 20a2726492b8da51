#include "OnTeamScreen.h"
#include "support/LeagueImage.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TeamBoxes : public OnTeamScreen {};

TEST_F(TeamBoxes, ANewTeamNameGoesIntoRecordCaptionAndList)
{
    Enter(Office().txtTeamName, "Port Ellery Gulls");
    EXPECT_EQ(Own().Name.Trimmed(), "Port Ellery Gulls");
    EXPECT_EQ(Office().windowTitle(), "Dravik Hockey Simulator Client - Port Ellery Gulls");
    ASSERT_EQ(Main().lstDivision[5]->count(), 1);
    EXPECT_EQ(Main().lstDivision[5]->item(0)->text(), "Port Ellery Gulls");
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamBoxes, AnEmptyTeamNameIsNoValidInput)
{
    Enter(Office().txtTeamName, "");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_TRUE(Office().txtTeamName->hasFocus());
    EXPECT_EQ(Own().Name.Trimmed(), "Harbour City Gulls");
    EXPECT_FALSE(Modified);
}

TEST_F(TeamBoxes, ATeamNameWithAForbiddenCharacterIsRefused)
{
    Enter(Office().txtTeamName, "Gulls_");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only numbers, letters and spaces are allowed in that textbox!"}));
    EXPECT_TRUE(Office().txtTeamName->hasFocus());
    EXPECT_EQ(Own().Name.Trimmed(), "Harbour City Gulls");
}

TEST_F(TeamBoxes, ANewFarmNameGoesIntoTheRecord)
{
    Enter(Office().txtFarmTeamName, "Pebble Creek 2");
    EXPECT_EQ(Own().Farm.Name.Trimmed(), "Pebble Creek 2");
    EXPECT_TRUE(Modified);
    EXPECT_EQ(Office().windowTitle(), "Dravik Hockey Simulator Client - Harbour City Gulls");
    Enter(Office().txtFarmTeamName, "");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_EQ(Own().Farm.Name.Trimmed(), "Pebble Creek 2");
}

TEST_F(TeamBoxes, AnAbbreviationOfTwoLettersIsRefusedInPlace)
{
    Enter(Office().txtAbbre, "HC");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Abbreviation must be 3 characters long!"}));
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
    EXPECT_EQ(Of(Office().txtAbbre), "HC");
    EXPECT_TRUE(Office().txtAbbre->hasFocus());
    EXPECT_FALSE(ListEventGuard);
}

TEST_F(TeamBoxes, AnAbbreviationOfFourLettersIsRefusedAndOneOfThreeStored)
{
    Enter(Office().txtFarmAbbre, "PCDX");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Abbreviation must be 3 characters long!"}));
    EXPECT_EQ(Own().Farm.Abbre.Trimmed(), "PCD");
    Enter(Office().txtFarmAbbre, "PCX");
    EXPECT_EQ(Own().Farm.Abbre.Trimmed(), "PCX");
    Enter(Office().txtAbbre, "XYZ");
    EXPECT_EQ(Own().Abbre.Trimmed(), "XYZ");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamBoxes, AnAbbreviationTakesLettersOnly)
{
    Enter(Office().txtAbbre, "H1G");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only letters and spaces are allowed in that textbox!"}));
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
}

TEST_F(TeamBoxes, NeitherAbbreviationMayBeEmptyOrHoldADigit)
{
    const std::pair<EditBox*, Text<3>&> boxes[] = {{Office().txtAbbre, Own().Abbre},
                                                   {Office().txtFarmAbbre, Own().Farm.Abbre}};
    for (const auto& [box, field] : boxes) {
        const std::string before = field.Trimmed();
        const std::pair<const char*, const char*> refused[] = {
            {"", "No Valid Input!"},
            {"123", "No Valid Input!"},
            {"H1G", "Only letters and spaces are allowed in that textbox!"},
            {"HC2", "Only letters and spaces are allowed in that textbox!"}};
        for (const auto& [text, words] : refused) {
            Enter(box, text);
            EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, words})) << text;
            EXPECT_EQ(field.Trimmed(), before) << text;
            EXPECT_EQ(Of(box), text);
            EXPECT_TRUE(box->hasFocus()) << text;
            EXPECT_FALSE(Modified) << text;
        }
        Enter(box, QString::fromStdString(before));
        EXPECT_THAT(Machine.TakeBoxes(), IsEmpty());
    }
}

TEST_F(TeamBoxes, TheFarmsMoraleMustBeANumberToo)
{
    for (const char* text : {"good", "", "-", "x4"}) {
        Enter(Office().txtFarmMorale, text);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"})) << text;
        EXPECT_EQ(Own().Farm.FarmMorale, 47) << text;
        EXPECT_TRUE(Office().txtFarmMorale->hasFocus()) << text;
    }
    for (const char* text : {"4x", "1 2"}) {
        Enter(Office().txtFarmMorale, text);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "Only numbers are allowed in that textbox!"})) << text;
        EXPECT_EQ(Own().Farm.FarmMorale, 47) << text;
    }
    Enter(Office().txtFarmMorale, "48");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Own().Farm.FarmMorale, 48);
}

TEST_F(TeamBoxes, TheCityMayBeEmpty)
{
    Enter(Office().txtCity, "");
    EXPECT_EQ(Own().City.Trimmed(), "");
    Enter(Office().txtCity, "St. John's 2");
    EXPECT_EQ(Own().City.Trimmed(), "St. John's 2");
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamBoxes, TheGeneralManagerMayBeEmptyButHoldsNoDigit)
{
    Enter(Office().txtGm, QString::fromUtf8("Rémi Gauthière"));
    EXPECT_EQ(Own().Gm.Trimmed(), "R\xE9mi Gauthi\xE8re");
    Enter(Office().txtGm, "");
    EXPECT_EQ(Own().Gm.Trimmed(), "");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    Enter(Office().txtGm, "Gm 2");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{48, "Only letters and spaces are allowed in that textbox!"}));
    EXPECT_EQ(Own().Gm.Trimmed(), "");
}

TEST_F(TeamBoxes, AMoraleOfZeroIsStoredAsOneAndTheBoxShowsOne)
{
    Enter(Office().txtProMorale, "0");
    EXPECT_EQ(Own().ProMorale, 1);
    EXPECT_EQ(Of(Office().txtProMorale), "1");
    Enter(Office().txtFarmMorale, "-99999");
    EXPECT_EQ(Own().Farm.FarmMorale, 1);
    EXPECT_EQ(Of(Office().txtFarmMorale), "1");
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamBoxes, AMoraleIsTheLeadingNumberOfItsText)
{
    Enter(Office().txtProMorale, "75");
    EXPECT_EQ(Own().ProMorale, 75);
    Enter(Office().txtProMorale, "8-2");
    EXPECT_EQ(Own().ProMorale, 8);
    EXPECT_EQ(Of(Office().txtProMorale), "8-2");
}

TEST_F(TeamBoxes, AMoraleMustBeANumber)
{
    Enter(Office().txtProMorale, "good");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
    Enter(Office().txtProMorale, "");
    EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"}));
    EXPECT_EQ(Own().ProMorale, 51);
    EXPECT_TRUE(Office().txtProMorale->hasFocus());
}

TEST_F(TeamBoxes, AMoraleThatDoesNotFitItsFieldIsAFailure)
{
    Enter(Office().txtProMorale, "32768");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in txtProMorale_LostFocus!"}));
    EXPECT_EQ(Own().ProMorale, 51);
}

TEST_F(TeamBoxes, GuardedBoxesDoNothing)
{
    for (EditBox* box : {Office().txtTeamName, Office().txtFarmTeamName, Office().txtAbbre, Office().txtFarmAbbre,
                         Office().txtCity, Office().txtGm, Office().txtProMorale, Office().txtFarmMorale}) {
        TypeInto(box, "_");
        Modified = false;
        ListEventGuard = true;
        Press(box, Qt::Key_Tab);
        ListEventGuard = false;
        EXPECT_FALSE(box->hasFocus());
        EXPECT_FALSE(Modified);
        box->setEnabled(false);
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Own().Name.Trimmed(), "Harbour City Gulls");
}

TEST_F(TeamBoxes, AddressesAreStoredWithoutACheck)
{
    Enter(Office().txtEmail, "a_b@[x]");
    EXPECT_EQ(Own().Email.Trimmed(), "a_b@[x]");
    EXPECT_TRUE(Modified);
    Enter(Office().txtMessenger, "");
    EXPECT_EQ(Own().Messenger.Trimmed(), "");
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamBoxes, ALongAddressIsCutToItsField)
{
    Enter(Office().txtEmail, QString(50, 'x'));
    EXPECT_EQ(Own().Email.Raw(), std::string(40, 'x'));
    EXPECT_EQ(Own().City.Trimmed(), "Harbour City");
}

TEST_F(TeamBoxes, ATextBeyondItsFieldIsShownAsTheRecordHoldsIt)
{
    const QString typed = QString(39, 'x') + "yz";
    const std::string held = std::string(39, 'x') + "y";
    for (EditBox* box : {Office().txtTeamName, Office().txtFarmTeamName, Office().txtCity, Office().txtGm,
                         Office().txtMessenger, Office().txtEmail}) {
        Enter(box, typed);
        EXPECT_EQ(Of(box), held) << box->objectName().toStdString();
    }
    EXPECT_EQ(Office().windowTitle().toStdString(), "Dravik Hockey Simulator Client - " + held);
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(TeamBoxes, ACharacterOutsideTheCodePageIsShownAsTheRecordHoldsIt)
{
    for (EditBox* box : {Office().txtMessenger, Office().txtEmail}) {
        Enter(box, QString("t") + QChar(0x0151) + "r"); // o with a double acute
        EXPECT_EQ(Of(box), "t?r") << box->objectName().toStdString();
    }
    EXPECT_EQ(Own().Messenger.Trimmed(), "t?r");
    EXPECT_EQ(Own().Email.Trimmed(), "t?r");
}

TEST_F(TeamBoxes, AMoraleThatDoesNotFitIsShownAsTheRecordHoldsIt)
{
    Enter(Office().txtProMorale, "32768");
    Enter(Office().txtFarmMorale, "99999999999");
    EXPECT_THAT(Machine.Boxes(), ElementsAre(Box{16, "6 - Overflow in txtProMorale_LostFocus!"},
                                             Box{16, "6 - Overflow in txtFarmMorale_LostFocus!"}));
    EXPECT_EQ(Of(Office().txtProMorale), "51");
    EXPECT_EQ(Of(Office().txtFarmMorale), "47");
}

// A check of words, one of letters and one of numbers take different signs.
TEST_F(TeamBoxes, EachBoxIsCheckedForItsOwnKindOfText)
{
    const struct {
        EditBox* Box;
        const char* Text;
        const char* Refusal;
    } kinds[] = {
        {Office().txtTeamName, "a_", "Only numbers, letters and spaces are allowed in that textbox!"},
        {Office().txtFarmTeamName, "a_", "Only numbers, letters and spaces are allowed in that textbox!"},
        {Office().txtCity, "a_", "Only numbers, letters and spaces are allowed in that textbox!"},
        {Office().txtGm, "a1", "Only letters and spaces are allowed in that textbox!"},
        {Office().txtAbbre, "ab1", "Only letters and spaces are allowed in that textbox!"},
        {Office().txtFarmAbbre, "ab1", "Only letters and spaces are allowed in that textbox!"},
        {Office().txtProMorale, "1a", "Only numbers are allowed in that textbox!"},
        {Office().txtFarmMorale, "1a", "Only numbers are allowed in that textbox!"},
    };
    const ByteVector before = ImageOf(Own());
    for (const auto& [box, text, refusal] : kinds) {
        Enter(box, text);
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, refusal})) << box->objectName().toStdString();
        EXPECT_TRUE(box->hasFocus()) << box->objectName().toStdString();
        ListEventGuard = true; // leaves it without a further word
        box->clearFocus();
        ListEventGuard = false;
    }
    EXPECT_EQ(ImageOf(Own()), before);
}

TEST_F(TeamBoxes, ARequiredBoxRefusesAnEmptyTextAndAnOtherTakesIt)
{
    for (EditBox* box : {Office().txtTeamName, Office().txtFarmTeamName, Office().txtAbbre, Office().txtFarmAbbre,
                         Office().txtProMorale, Office().txtFarmMorale}) {
        Enter(box, "");
        EXPECT_THAT(Machine.TakeBoxes(), ElementsAre(Box{48, "No Valid Input!"})) << box->objectName().toStdString();
        ListEventGuard = true;
        box->clearFocus();
        box->setEnabled(false);
        ListEventGuard = false;
    }
    for (EditBox* box : {Office().txtCity, Office().txtGm, Office().txtMessenger, Office().txtEmail}) {
        Enter(box, "");
        EXPECT_TRUE(Modified) << box->objectName().toStdString();
    }
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
    EXPECT_EQ(Own().Abbre.Trimmed(), "HCG");
    EXPECT_EQ(Own().Farm.Abbre.Trimmed(), "PCD");
    EXPECT_EQ(Own().Farm.FarmMorale, 47);
    EXPECT_EQ(Own().City.Trimmed(), "");
    EXPECT_EQ(Own().Gm.Trimmed(), "");
}

TEST_F(TeamBoxes, NeitherAddressIsGuardedNorChecked)
{
    for (EditBox* box : {Office().txtMessenger, Office().txtEmail}) {
        TypeInto(box, "_" + box->objectName());
        Modified = false;
        ListEventGuard = true;
        Press(box, Qt::Key_Tab);
        ListEventGuard = false;
        EXPECT_TRUE(Modified);
    }
    EXPECT_EQ(Own().Messenger.Trimmed(), "_txtMessenger");
    EXPECT_EQ(Own().Email.Trimmed(), "_txtEmail");
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}
} // namespace
} // namespace dravik
