// The attributes of RADIUS and Diameter that types of the dictionary stand for.
#pragma once

#include <string>

#include "identifiers.h"

namespace generate {

// "RFC 2865 User-Name (1)", or empty where nothing certain is known. Ends the program with a sentence where
// rfc_names.def has another name for the type.
std::string elsewhere(const Type &type);

}  // namespace generate
