// An icon in the notification area of the task bar, with a tool tip. A reusable control: a window places it
// on itself, sets its properties and handles its events. A form designer can show the control and keep its
// properties; this program sets them itself and handles MouseDown only.
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
    // In a designer the control is visible on its window, as a small picture, and shows no icon in the
    // notification area.
    enum class Environment { Running, Design };

    // nullopt is no picture at all; a null HICON is an empty picture. The caller keeps the icon alive for as
    // long as the control shows it.
    using Picture = std::optional<HICON>;

    // What a designer saves, with the defaults.
    struct Properties {
        Picture Icon = HICON{};
        std::wstring ToolTip;
        bool Visible = false;
        bool operator==(const Properties&) const = default;
    };

    TrayArea() = default;
    // Removes the icon, as does the destruction of the owner.
    ~TrayArea() override { Destroy(); }

    // Creates the control's window as a child of its owner, a top-level window of the same thread that holds
    // one such control. To be called once, before the icon is shown. Throws SystemFault when the system
    // cannot; the control has no window then.
    void Place(HWND owner, Environment environment = Environment::Running);

    // Stores saved properties as they are. The icon appears only when SetVisible changes Visible to true.
    void ReadProperties(const Properties& saved) { properties_ = saved; }
    const Properties& SavedProperties() const { return properties_; }

    bool Visible() const { return properties_.Visible; }
    // Whether the shell has the icon. False although Visible() is true if the shell refused the icon.
    bool IsTaken() const { return taken_; }

    // The properties change even if the shell refuses the change.
    void SetIcon(Picture New_Icon);  // nullopt hides the icon
    // Stored without blanks at its ends. The shell gets the first 64 characters.
    void SetToolTip(std::wstring_view New_ToolTip);
    // Throws SystemFault when the owner's messages cannot be intercepted; nothing has changed then.
    void SetVisible(bool New_Visible);

    // A property was set: "Icon", "ToolTip" or "Visible".
    std::function<void(const wchar_t* name)> PropertyChanged;

    // The mouse on the icon. Button is 1 for the left button, 2 for the right one.
    std::function<void()> MouseMove;
    std::function<void(std::int16_t& Button)> MouseDown;
    std::function<void(std::int16_t& Button)> MouseUp;
    std::function<void()> DblClick;

    // A new taskbar has refused the icon. Visible() stays true.
    std::function<void()> IconLost;

  private:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
    void RaiseMouseEvent(LPARAM message) const;
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
    bool taken_ = false;
    bool resizing_ = false;  // by the control itself
    Subclass owner_;
};

}  // namespace lindrel
