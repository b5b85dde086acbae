/// All that a C++ host needs: the document and everything it owns, and the base class of host objects.
#pragma once

#include "foundation/ErrorHost.h"
#include "foundation/version.h"
#include "model/basPublicAnswers.h"
#include "model/clsHTDRDD.h"
