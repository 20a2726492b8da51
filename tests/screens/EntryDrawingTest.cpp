#include "OnDraftScreen.h"

#include <QImage>

namespace dravik {
namespace {

constexpr int SideMargin = 4; // left and right of an entry's text

const QString FortyWideLetters(40, 'W');

// What a list paints of its entry `row`, from its right end on where `width` is given.
QImage Painted(const EntryList& list, int row, int width = 0)
{
    const QRect entry = list.visualItemRect(list.item(row)) & list.viewport()->rect();
    return list.viewport()->grab(width > 0 ? entry.adjusted(entry.width() - width, 0, 0, 0) : entry).toImage();
}

// A text behind whose name `Marks` stand is cut in the name alone.
struct MarksCase {
    const char* Name;
    const char* Marks;
};

class EntryMarks : public OnStage, public ::testing::WithParamInterface<MarksCase> {
protected:
    QImage PaintedAlone(const QString& text)
    {
        EntryList list;
        list.Add(text, 1);
        list.resize(160, 100);
        list.show();
        Settle();
        width = list.viewport()->width() - 2 * SideMargin;
        metrics = list.fontMetrics();
        return Painted(list, 0);
    }

    int width = 0;
    QFontMetrics metrics{QFont()};
};

TEST_P(EntryMarks, StayWhereTheNameIsCut)
{
    const QString marks = GetParam().Marks;
    const QImage painted = PaintedAlone(FortyWideLetters + marks);
    const QString name = metrics.elidedText(FortyWideLetters, Qt::ElideRight, width - metrics.horizontalAdvance(marks));
    ASSERT_LT(name.size(), FortyWideLetters.size());
    EXPECT_EQ(painted, PaintedAlone(name + marks));
}

constexpr MarksCase MarksCases[] = {
    {"Center", " (C)"},
    {"LeftWing", " (LW)"},
    {"RightWing", " (RW)"},
    {"Defense", " (D)"},
    {"Goalie", " (G)"},
    {"RestrictedCenter", " (C)-RFA"},
    {"RestrictedLeftWing", " (LW)-RFA"},
    {"RestrictedGoalie", " (G)*"},
    {"Star", " *"},
    {"CaptainWithStar", " (C) *"},
    {"TwoStars", " (A) * *"},
};
INSTANTIATE_TEST_SUITE_P(All, EntryMarks, ::testing::ValuesIn(MarksCases),
                         [](const auto& made) { return std::string(made.param.Name); });

class DraftColumns : public OnDraftScreen {
protected:
    // The column of numbers at the right end of an entry.
    static constexpr int ColumnWidth = 24;
};

TEST_F(DraftColumns, ANameOfFortyLettersLeavesTheOverallItsColumn)
{
    for (int index = 11; index <= 13; ++index)
        PutSkater(index, 0, position::LeftWing, status::Farm).Name = "Skater";
    Players[11].Name = FortyWideLetters.toStdString();
    const frmDraft& draft = Draft();
    const EntryList& list = *draft.lstPlayers;
    ASSERT_EQ(list.item(2)->text(), FortyWideLetters + " (LW)");
    ASSERT_EQ(list.item(4)->data(entry::AsideRole).toStringList(), QStringList{"60"});
    EXPECT_EQ(Painted(list, 2, ColumnWidth), Painted(list, 4, ColumnWidth));
    const QImage with = Painted(list, 4, ColumnWidth);
    list.item(4)->setData(entry::AsideRole, QStringList());
    EXPECT_NE(Painted(list, 4, ColumnWidth), with);
}

TEST_F(DraftColumns, ANameOfFortyLettersLeavesTheRankItsColumn)
{
    Players[7].Name = FortyWideLetters.toStdString();
    Choose({0, 1});
    const EntryList& list = *Draft().lstDraftList;
    const QImage with = Painted(list, 0, ColumnWidth);
    list.item(0)->setData(Qt::DisplayRole, "Skater");
    EXPECT_EQ(Painted(list, 0, ColumnWidth), with);
    list.item(0)->setData(entry::AsideRole, QStringList());
    EXPECT_NE(Painted(list, 0, ColumnWidth), with);
}

} // namespace
} // namespace dravik
