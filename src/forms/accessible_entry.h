#pragma once

namespace quarvel {

/// From here on assistive tools meet boxes of one line as what they are: to be edited, or to be read only.
/// The toolkit calls a locked one both at once.
void tellLockedEntriesTruly();

} // namespace quarvel
