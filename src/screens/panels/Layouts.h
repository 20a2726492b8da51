#pragma once

#include "screens/panels/Shades.h"

#include <initializer_list>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QList>
#include <QVBoxLayout>

class QGroupBox;

// Rows, columns and grids of the screens, with one set of margins and gaps. Whatever is made belongs to the panel it is made
// for, or else to the layout it is put into.
namespace dravik {

// Numbers of the columns in a grid of captions and fields.
constexpr int CaptionColumn = 0;
constexpr int FieldColumn = 1;

// These in a row, or one below the other, `spacing` pixels apart and without margins.
QHBoxLayout* MakeRow(std::initializer_list<QWidget*> widgets, int spacing = Gap);
QVBoxLayout* MakeColumn(std::initializer_list<QWidget*> widgets, int spacing = Gap);

// An empty column that becomes the layout of `panel`: without margins, or with those of a whole screen.
QVBoxLayout* MakeColumn(QWidget* panel, int spacing = Gap);
QVBoxLayout* MakePage(QWidget* content, int spacing = Gap);

// The last row of a screen: some commands at its left, others at its right.
QHBoxLayout* MakeFooter(std::initializer_list<QWidget*> left, std::initializer_list<QWidget*> right);

// A panel of commands one below the other, halfway down.
QWidget* MakeCommandColumn(std::initializer_list<QWidget*> commands, QWidget* parent);

// Gives the layout of a group box the margins that fit under a caption.
void SetGroupMargins(QLayout* layout);

// The layout of a group of captions and fields. The captions' column has room for `longestCaption`, so that the fields of all
// groups of a screen have one edge; the fields take what is left.
QGridLayout* MakeFieldGrid(QGroupBox* group, const QString& longestCaption);

// `page` with `footer`, if there is one, below it. Where the window is too small the page scrolls, and the footer stays.
QWidget* MakeScrollingPage(QWidget* page, QLayout* footer, QWidget* parent);

// The tab key goes from each to the next.
void ChainTabs(const QList<QWidget*>& order);

} // namespace dravik
