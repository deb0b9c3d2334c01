#pragma once

#include "orbis_host_export.hpp"

// The driving interface is exported from the same library as the host declarations.
#define VELMARA_API ORBIS_HOST_API
