#include "exports/outputs.hpp"
