#include "desk/Contacts.h"

#include "OfficeDesk.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ContactsTest : public OfficeDesk {};

TEST_F(ContactsTest, AnyAddressIsTakenAndToldAsTheRecordHoldsIt)
{
    const LeagueBefore before;
    SetEmail(OpenWork(), 5, "a_b@[x]  ");
    EXPECT_EQ(Five.Email.Trimmed(), "a_b@[x]");
    EXPECT_TRUE(Modified);
    Modified = false;
    SetMessenger(OpenWork(), 5, std::string(39, 'x') + "yz");
    EXPECT_EQ(Five.Messenger.Raw(), std::string(39, 'x') + "y");
    EXPECT_TRUE(Modified);
    EXPECT_THAT(Machine.TakeNews(),
                ElementsAre(News{"league", "Harbour City Gulls Email Address was change to a_b@[x]."},
                            News{"league",
                                 "Harbour City Gulls Messenger Address was change to " + std::string(39, 'x') + "y."}));
    EXPECT_TRUE(before.DiffersOnlyIn(Five.Email, Five.Messenger));
    EXPECT_THAT(Machine.Boxes(), IsEmpty());
}

TEST_F(ContactsTest, AnEmptyAddressIsToldToo)
{
    SetEmail(OpenWork(), 5, "");
    EXPECT_EQ(Five.Email.Raw(), std::string(40, ' '));
    EXPECT_THAT(Machine.TakeNews(), ElementsAre(News{"league", "Harbour City Gulls Email Address was change to ."}));
}

} // namespace
} // namespace dravik
