#pragma once

#include "forms/hidden_text_box.h"

#include <QString>

namespace quarvel {

/// Who presents an airport to the user by reading its text aloud.
class Presenter {
public:
    Presenter() = default;
    Presenter(const Presenter&) = delete;
    Presenter& operator=(const Presenter&) = delete;
    virtual ~Presenter() = default;

    /// Replaces the box's text by the whole content of a file.
    virtual void LoadTextFile(const QString& path, HiddenTextBox& box) = 0;
    /// Starts one presentation of the box's text and returns at once.
    virtual void PresentAirport(const HiddenTextBox& box) = 0;
};

} // namespace quarvel
