#include "rules/Function.h"
#include "support/SmallLeague.h"

namespace dravik {
namespace {

using ::testing::ElementsAre;

class FinanceTest : public SmallLeague {
protected:
    FinanceTest() { TeamMaker(5); }
};

TEST_F(FinanceTest, HealthyPlayerWithContract0CostsNothingInThePayrollButCountsInTheExpense)
{
    PutSkater(7, 5, position::Center, status::Pro).Contract = 0;
    EXPECT_EQ(ProPayroll(5), 0);
    EXPECT_EQ(ExpensePerGame(5), 12195); // 1000000 / 82
}

} // namespace
} // namespace dravik
