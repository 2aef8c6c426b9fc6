#include "core/Version.h"

const double VantrelVersionNumber = 1.0;
const unsigned char VantrelVersionString[] = "@(#)PROGRAM:Vantrel  PROJECT:Vantrel-1\n";
