#pragma once

#include <vector>

namespace quarvel {

class Form;

/// The program's windows; each exists at most once.
enum class WindowName { frmMain, frmView, frmFS9 };

/// How windows hand over to each other without knowing each other.
class Windows {
public:
    Windows() = default;
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;
    virtual ~Windows() = default;

    /// Shows a window, loading it first when it is not loaded.
    virtual void show(WindowName name) = 0;
    /// The windows that are loaded now, in the order in which they were loaded.
    [[nodiscard]] virtual std::vector<Form*> loaded() const = 0;
    /// A window has been unloaded; without another loaded one the program ends.
    virtual void unloaded(Form& form) = 0;
};

} // namespace quarvel
