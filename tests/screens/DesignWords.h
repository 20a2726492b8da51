#pragma once

#include "screens/panels/EditArea.h"
#include "screens/panels/EditBox.h"
#include "screens/panels/EntryList.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <string>
#include <vector>

namespace dravik {

// What a screen or a part of it is called and says before the screen is filled: its own name, what it shows, and what a
// screen reader calls it. A label that belongs to a box stands with that box's name.
struct DesignWords {
    std::string Name;
    std::string Caption;
    std::string ReadAs = {};
    std::string Buddy = {};

    bool operator==(const DesignWords&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const DesignWords& words)
{
    return out << "{\"" << words.Name << "\", \"" << words.Caption << "\", \"" << words.ReadAs << "\", \""
               << words.Buddy << "\"}";
}

// The words of a screen's title, of its menus and their commands, and of all its labels, commands, ticks, groups, boxes and
// lists but those within `leftOut`. What has neither a name nor words is none, nor is a part that the toolkit adds.
inline std::vector<DesignWords> DesignWordsOf(const QWidget& screen, const QWidget* leftOut = nullptr)
{
    std::vector<DesignWords> all;
    const auto add = [&all](const QObject& part, const QString& caption, const QString& readAs = {},
                            const QWidget* buddy = nullptr) {
        const DesignWords words{part.objectName().toStdString(), caption.toStdString(), readAs.toStdString(),
                                buddy == nullptr ? std::string() : buddy->objectName().toStdString()};
        if (words != DesignWords{})
            all.push_back(words);
    };
    add(screen, screen.windowTitle(), screen.accessibleName());
    for (const QWidget* part : screen.findChildren<QWidget*>()) {
        const bool isLeftOut = leftOut != nullptr && part != leftOut && leftOut->isAncestorOf(part);
        if (isLeftOut || part->objectName().startsWith("qt_"))
            continue;
        const QString readAs = part->accessibleName();
        if (const auto* label = qobject_cast<const QLabel*>(part))
            add(*part, label->text(), readAs, label->buddy());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(part))
            add(*part, button->text(), readAs);
        else if (const auto* group = qobject_cast<const QGroupBox*>(part))
            add(*part, group->title(), readAs);
        else if (const auto* box = qobject_cast<const EditBox*>(part))
            add(*part, box->text(), readAs);
        else if (const auto* area = qobject_cast<const EditArea*>(part))
            add(*part, area->toPlainText(), readAs);
        else if (qobject_cast<const EntryList*>(part) != nullptr)
            add(*part, {}, readAs);
        else if (const auto* menu = qobject_cast<const QMenu*>(part)) {
            add(*part, menu->title(), readAs);
            for (const QAction* command : menu->actions())
                if (command->menu() == nullptr)
                    add(*command, command->text());
        }
    }
    return all;
}

} // namespace dravik
