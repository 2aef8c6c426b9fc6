#pragma once

/// @file
/// The whole public interface of the library, room by room.

#include "core/Export.h"
#include "core/PathUtils.h"
#include "core/Status.h"
#include "core/Types.h"
#include "core/Version.h"

#include "xml/DsXml.h"
#include "xml/XmlPtr.h"
