#pragma once

#include "rules/PersonSigns.h"

#include <QColor>
#include <QFontMetrics>
#include <QPainter>
#include <QRectF>
#include <QString>

// How the signs of people are drawn, sharp at any scale and each in a shape of its own, so that none is known by its colour alone.
namespace dravik {

// The colour of a sign on `ground`, where words are `front`: red for what is wrong, amber for what is worth a look, the shade of
// secondary words for the rest. Its contrast is that of words.
QColor InkOf(Sign kind, const QColor& front, const QColor& ground);

// Draws the shape of a sign in the middle of `area`, as large as that lets it be. Those of the slots held are words alone and
// have none.
void PaintShape(QPainter& painter, Sign kind, const QRectF& area, const QColor& ink, const QColor& ground);

// What is written beside the shape: the condition, the games, the number of slots ("×7"), "not used". `isShort` says the last in
// one character.
QString FigureOf(const PersonSign& sign, bool isShort = false);

// The width of a sign with its figure in a line of text, and its drawing into `area`, which is that wide.
int WidthOf(const PersonSign& sign, const QFontMetrics& metrics, bool isShort = false);
void PaintSign(QPainter& painter, const PersonSign& sign, const QRect& area, const QColor& front, const QColor& ground,
               bool isShort = false);

} // namespace dravik
