// Everything that a small host needs: load the module, give it services, read its texts. Needs the
// standard library and the interface headers, nothing else.
#pragma once

#include "localization_manager/host/ErrorListener.h"
#include "localization_manager/host/HeapAllocator.h"
#include "localization_manager/host/HostObject.h"
#include "localization_manager/host/Module.h"
#include "localization_manager/host/ParamMap.h"
#include "localization_manager/host/ParamResolver.h"
#include "localization_manager/host/Report.h"
#include "localization_manager/host/ResolveListener.h"
#include "localization_manager/host/ResultError.h"
#include "localization_manager/host/ServiceLocator.h"
#include "localization_manager/host/Tracer.h"
#include "localization_manager/host/text.h"
