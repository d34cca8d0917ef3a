// An icon in the notification area of the task bar, with a tool tip. A window places the control on itself,
// sets its properties and hears what the mouse does on the icon. The control is visible on the window only
// while the window is being designed.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "window/OwnWindow.h"
#include "window/Subclass.h"
// After the others: it needs them.
#include <shellapi.h>

namespace lindrel {

class TrayArea : public OwnWindow {
  public:
    enum class Environment { Running, Design };

    // A picture is an icon's handle, null for the empty picture; nothing is no picture at all. The icon is
    // not the control's: it must live as long as the control shows it.
    using Picture = std::optional<HICON>;

    // What is saved with the design of the window, with its defaults.
    struct Properties {
        Picture Icon = HICON{};
        std::wstring ToolTip;
        bool Visible = false;
        bool operator==(const Properties&) const = default;
    };

    TrayArea() = default;
    // Removes the icon. So does the destruction of the owner.
    ~TrayArea() override { Destroy(); }

    // Makes the control's own window, a child of its owner; once, before an icon can be shown. The owner is a
    // main window of the same thread and holds one such control. Throws SystemFault when the system
    // cannot; then there is no control.
    void Place(HWND owner, Environment environment = Environment::Running);

    // Stores what was saved, as it is: nothing appears until Visible is set.
    void ReadProperties(const Properties& saved) { properties_ = saved; }
    const Properties& SavedProperties() const { return properties_; }

    const Picture& Icon() const { return properties_.Icon; }
    const std::wstring& ToolTip() const { return properties_.ToolTip; }
    bool Visible() const { return properties_.Visible; }
    // Whether the shell shows the icon. False while Visible is true when the shell has refused it.
    bool IsTaken() const { return taken_; }

    // A change that the shell refuses has no effect on the screen; the properties change all the same.
    void SetIcon(Picture New_Icon);  // no picture at all hides the icon
    // Stored without the blanks around it. The shell gets the first 64 characters.
    void SetToolTip(std::wstring_view New_ToolTip);
    void SetVisible(bool New_Visible);

    // A property was set; named "Icon", "ToolTip" or "Visible".
    std::function<void(const wchar_t* name)> PropertyChanged;

    // What the mouse does on the icon. Button is 1 for the left one, 2 for the right one.
    std::function<void()> MouseMove;
    std::function<void(std::int16_t& Button)> MouseDown;
    std::function<void(std::int16_t& Button)> MouseUp;
    std::function<void()> DblClick;

    // A new taskbar has refused the icon, which is no longer to be seen. Visible stays true.
    std::function<void()> IconLost;

  private:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
    void Decode(LPARAM mouse_message);
    void Resize();
    void PaintPicture() const;
    SIZE PictureSize() const;

    void AddIcon();
    void AddIconAgain();
    void ListenForNewTaskbar();
    void RemoveIcon();
    bool Tell(DWORD operation);
    void PutToolTip();
    void Announce(const wchar_t* name) const;

    Properties properties_;
    NOTIFYICONDATAA record_{};
    std::mt19937 random_{std::random_device{}()};
    Environment environment_ = Environment::Running;
    bool taken_ = false;     // the shell shows the icon
    bool resizing_ = false;  // by the control itself
    Subclass owner_;
};

}  // namespace lindrel
