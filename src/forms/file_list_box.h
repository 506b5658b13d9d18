#pragma once

#include "files/result.h"
#include "forms/widget_control.h"

#include <QString>
#include <QStringList>

namespace quarvel {

/// A list of a folder's files, used to enumerate the folder and never shown.
class FileListBox : public WidgetControl {
public:
    FileListBox(Container& container, const ControlSpec& spec);

    /// Points the list at a folder and reads it afresh. On failure the list keeps its folder and files.
    [[nodiscard]] Result<void> setPath(const QString& folder);

    [[nodiscard]] const QString& path() const { return path_; }
    [[nodiscard]] const QStringList& files() const { return files_; }

private:
    QString path_;
    QStringList files_;
};

} // namespace quarvel
