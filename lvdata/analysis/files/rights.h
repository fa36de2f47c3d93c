#pragma once

namespace lv::analysis {

/// Gives a new file the permissions of an old one: owner and group if the user may set them, access list, extended
/// attributes, and permission bits. Nobody gets more rights on the new file than on the old one: if the owner or the
/// group cannot be kept, the set-user-ID and set-group-ID bits are dropped, and a different group gets only the rights
/// that everybody has. Throws `std::system_error` when an access list or an attribute cannot be kept, naming it.
///
/// Attributes that certify the old content are not kept: capabilities and the signatures of files.
void adoptRights(int file, int old);

}  // namespace lv::analysis
