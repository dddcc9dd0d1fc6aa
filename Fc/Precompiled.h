#pragma once

// What nearly every source of the engine includes.
#include "Fc/FcBase.h"
#include "Fc/FcVisitorBase.h"
#include "Fc/FcVisitorBaseNonConst.h"
#include "Fc/Reflection/InverseSet.h"
#include "Fc/Reflection/Links.h"
#include "Fc/Reflection/MakeEntity.h"
#include "Fc/Reflection/ValueTraits.h"
