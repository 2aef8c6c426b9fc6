#pragma once

/// @file
/// Everything that the library offers.

#include "core/Export.h"
#include "core/PathUtils.h"
#include "core/Status.h"
#include "core/Types.h"
#include "core/Version.h"
#include "disc/DSCommandList.h"
#include "disc/DSDataFile.h"
#include "disc/DSEncodingParams.h"
#include "disc/DSLayout.h"
#include "disc/DSMenuColours.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "project/DSFileService.h"
#include "project/DSList.h"
#include "project/DiscEnums.h"
#include "project/FormatUtils.h"
#include "project/ProjectNode.h"
#include "project/Visitor.h"
#include "project/XMLPersistTable.h"
#include "project/XMLPersistor.h"
#include "project/XMLProjectLoader.h"
#include "xml/DsXml.h"
