#pragma once

#include "program/Views.h"

namespace vantle {

/// The name by which the library of the views gives out its entry. It is built with the program:
/// both have one version.
inline constexpr auto viewsEntry = "vantleMakeViews";

/// What stands behind that name. Makes the views, which the caller owns.
using ViewsEntry = Views* (*)(const ViewsServices& services);

}  // namespace vantle
