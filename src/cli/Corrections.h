// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"
#include "FolderPlans.h"

#include <string>

namespace chronomender {

/// Carries out what the command line says about an imported folder: zones of single items, then
/// missing tags, shifts, then the readings of stamps that mean two instants. (The folder's own
/// zones hold since it was opened.) A name that means no item is a complaint. Main thread.
std::optional<Complaint> correct(AppController &controller, const FolderPlan &plan,
                                 MySingleFolder &folder);

/// The item that the file of that name belongs to, by its own name or that of the other half of its
/// group; null when there is none.
MySinglePicPtr itemWithFile(const MySingleFolder &folder, const std::string &name);

} // namespace chronomender
