#pragma once

#include <QWidget>

namespace dravik {

// The part of a widget that a screen reader calls by this name, or null.
inline QWidget* PartReadAs(const QWidget& whole, const QString& name)
{
    for (QWidget* part : whole.findChildren<QWidget*>())
        if (part->accessibleName() == name)
            return part;
    return nullptr;
}

} // namespace dravik
