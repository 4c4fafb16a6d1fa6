// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <initializer_list>
#include <string>
#include <vector>

// Sets environment variables that are not set yet, and unsets those again at the end of the scope. For
// libraries that are configured by nothing else. Main thread only, like everything that touches the
// environment.
class ScopedEnvironment
{
public:
    struct Variable
    {
        const char *name;
        const char *value;
    };

    ScopedEnvironment(std::initializer_list<Variable> defaults);
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;

private:
    std::vector<std::string> m_set;
};
