#pragma once

namespace lv::analysis {

/// Gives a new file the rights of an old one: owner and group where the user may give them, access list, extended
/// attributes, and permission bits. Nobody can do more with the new file than with the old one: where the owner or the
/// group cannot be kept, the bits that let a program run as them are dropped, and another group may only do what
/// everybody may. Throws `std::system_error` when an access list or an attribute cannot be kept, naming it.
///
/// Not kept are attributes that vouch for the content, which is new: capabilities and the signatures of files.
void adoptRights(int file, int old);

}  // namespace lv::analysis
