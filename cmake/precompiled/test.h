// The same for test programs.
#pragma once

#include "plain.h"

#include <gtest/gtest.h>
