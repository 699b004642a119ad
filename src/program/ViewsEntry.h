#pragma once

#include "program/Views.h"

namespace vantle {

/// The name of the function that the library of the views exports. The library is built with the
/// program, so both have the same version.
inline constexpr auto viewsEntry = "vantleMakeViews";

/// The type of that function. It makes the views, which the caller owns.
using ViewsEntry = Views* (*)(const ViewsServices& services);

}  // namespace vantle
