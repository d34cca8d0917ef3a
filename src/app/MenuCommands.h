// Runs the handlers of menu commands from a table of a form's members.
#pragma once

#include <algorithm>
#include <span>

namespace lindrel {

template <typename Form>
struct MenuCommand {
    int Id;
    void (Form::*Handler)();
};

// Runs the handler of an id. False when the table has none.
template <typename Form>
bool RunMenuCommand(Form& form, std::span<const MenuCommand<Form>> commands, int id) {
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [id](const MenuCommand<Form>& known) { return known.Id == id; });
    if (command == commands.end()) return false;
    (form.*command->Handler)();
    return true;
}

}  // namespace lindrel
