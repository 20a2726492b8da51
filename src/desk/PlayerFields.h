#pragma once

#include "desk/PlayerHealth.h"
#include "league/PersonId.h"
#include "machine/InputCheck.h"
#include "machine/Work.h"

#include <string>
#include <string_view>

namespace dravik {

// The fields of a person's record, and what becomes of a text, a number or a tick that is given to one. Skaters and goalies
// have all of them.
enum class NumberField { Age, Weight, Height, Contract, Salary, Condition, Suspension };
enum class TextField { Name, Country, Injury };
enum class FlagField { Rookie, NoTrade, NoApplyRerate };

// A number as the record holds it; the number at the head of `text` within the limits of the field, which fails with 6 when it
// does not fit 32 bits.
long long NumberOf(const Tables& league, PersonId who, NumberField field);
long long LimitedNumber(const League& rules, NumberField field, std::string_view text);

// Stores what LimitedNumber makes of `text`. A contract of no years is refused during the season to whoever has a team, which is
// told. What follows from another condition and from a suspension follows; `turns` is called before it does. True when the
// number was stored. Fails with 6, and stores nothing, when it does not fit its field.
bool SetNumber(
    const Work& work, PersonId who, NumberField field, std::string_view text,
    const TellTurn& turns = [](HealthTurn) {});

// Which signs a text may hold; the text as the record holds it, without its outer blanks; `text` cut to the width of the field.
InputMode ModeOf(TextField field);
std::string TextOf(const Tables& league, PersonId who, TextField field);
std::string CutText(TextField field, std::string_view text);
void SetText(const Work& work, PersonId who, TextField field, std::string_view text);

// A rating has no limits. `rating` counts from 1; one that the kind of the person has not fails with 9, and a number that does
// not fit 16 bits with 6.
long long RatingOf(const Tables& league, PersonId who, int rating);
long long TypedRating(std::string_view text);
void SetRating(const Work& work, PersonId who, int rating, std::string_view text);

// The name of the team that he plays for; empty when he has none, and when his is not in use.
std::string EmployerOf(const Tables& league, PersonId who);

// A flag by itself counts as no edit.
void SetFlag(const Work& work, PersonId who, FlagField field, bool on);

} // namespace dravik
