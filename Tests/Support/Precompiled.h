// What nearly all tests include, and what is dear to read. A change of anything in here builds all
// tests again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <numbers>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <variant>
#include <vector>

#include "Fc/Data.h"
#include "Fc/FcBase.h"
#include "Fc/Reflection/MakeEntity.h"
