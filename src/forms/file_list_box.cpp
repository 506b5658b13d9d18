#include "forms/file_list_box.h"

#include "files/lookup.h"

namespace quarvel {

FileListBox::FileListBox(Container& container, const ControlSpec& spec)
    : WidgetControl(container, spec, new QWidget) {}

Result<void> FileListBox::setPath(const QString& folder) {
    Result<QStringList> listed = listFiles(folder);
    if (!listed) return listed.failure();
    path_ = folder;
    files_ = listed.take();
    return {};
}

} // namespace quarvel
