#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

#include <string>
#include <utility>
#include <vector>

namespace dravik {

// A caption: the name of the control that carries it, empty for one without a name, and its words.
using Caption = std::pair<std::string, std::string>;

// Every caption of a screen: its title, labels, buttons, groups, menus and their commands. What is empty is none.
inline std::vector<Caption> CaptionsOf(const QWidget& screen)
{
    std::vector<Caption> captions;
    const auto add = [&captions](const QObject& control, const QString& words) {
        if (!words.isEmpty())
            captions.emplace_back(control.objectName().toStdString(), words.toStdString());
    };
    add(screen, screen.windowTitle());
    for (const auto* label : screen.findChildren<QLabel*>())
        add(*label, label->text());
    for (const auto* button : screen.findChildren<QAbstractButton*>())
        add(*button, button->text());
    for (const auto* group : screen.findChildren<QGroupBox*>())
        add(*group, group->title());
    for (const auto* menu : screen.findChildren<QMenu*>()) {
        add(*menu, menu->title());
        for (const QAction* command : menu->actions())
            add(*command, command->text());
    }
    return captions;
}

} // namespace dravik
