// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/scoped_environment.h"

#include <cstdlib>

ScopedEnvironment::ScopedEnvironment(std::initializer_list<Variable> defaults)
{
    m_set.reserve(defaults.size());
    for (const Variable &variable : defaults) {
        if (std::getenv(variable.name) == nullptr && ::setenv(variable.name, variable.value, 0) == 0)
            m_set.emplace_back(variable.name);
    }
}

ScopedEnvironment::~ScopedEnvironment()
{
    for (const std::string &name : m_set)
        ::unsetenv(name.c_str());
}
