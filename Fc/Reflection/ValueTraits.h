#pragma once

// The operations of every type that a member of a schema class can have, one header for each family
// of types.
#include "Fc/Reflection/AlternativeOperationsOf.h"
#include "Fc/Reflection/ClassInfo.h"
#include "Fc/Reflection/InverseOperations.h"
#include "Fc/Reflection/Traits/DefinedTypeTraits.h"
#include "Fc/Reflection/Traits/EnumerationTraits.h"
#include "Fc/Reflection/Traits/ListTraits.h"
#include "Fc/Reflection/Traits/OptionalTraits.h"
#include "Fc/Reflection/Traits/ReferenceTraits.h"
#include "Fc/Reflection/Traits/ScalarTraits.h"
#include "Fc/Reflection/Traits/SelectTraits.h"
#include "Fc/Reflection/Traits/TupleTraits.h"
