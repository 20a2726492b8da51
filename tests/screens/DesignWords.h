#pragma once

#include "screens/panels/EditArea.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/EntryList.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <string>
#include <vector>

namespace dravik {

// What a part of a screen is called and says before the screen is filled: its own name, what it shows, and what a screen
// reader calls it. A label that belongs to a box stands with that box's name.
struct DesignWords {
    std::string Name;
    std::string Caption;
    std::string ReadAs;
    std::string Buddy = {};

    bool operator==(const DesignWords&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const DesignWords& words)
{
    return out << '{' << words.Name << ", \"" << words.Caption << "\", \"" << words.ReadAs << "\", " << words.Buddy
               << '}';
}

// The words of all labels, commands, ticks, groups, boxes and lists of a screen but those within `leftOut`.
inline std::vector<DesignWords> DesignWordsOf(const QWidget& screen, const QWidget* leftOut = nullptr)
{
    std::vector<DesignWords> all;
    for (const QWidget* part : screen.findChildren<QWidget*>()) {
        if (leftOut != nullptr && part != leftOut && leftOut->isAncestorOf(part))
            continue;
        const auto add = [&](const QString& caption, const QWidget* buddy = nullptr) {
            all.push_back({part->objectName().toStdString(), caption.toStdString(),
                           part->accessibleName().toStdString(),
                           buddy == nullptr ? std::string() : buddy->objectName().toStdString()});
        };
        if (const auto* label = qobject_cast<const QLabel*>(part))
            add(label->text(), label->buddy());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(part))
            add(button->text());
        else if (const auto* group = qobject_cast<const QGroupBox*>(part))
            add(group->title());
        else if (const auto* box = qobject_cast<const EditBox*>(part))
            add(box->text());
        else if (const auto* area = qobject_cast<const EditArea*>(part))
            add(area->toPlainText());
        else if (qobject_cast<const EntryList*>(part) != nullptr)
            add({});
    }
    return all;
}

} // namespace dravik
