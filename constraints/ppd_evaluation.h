// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <memory>

struct _cups_array_s;
struct ppd_file_s;

namespace constraints {

class PpdRules;

// Limits the constraints of a PPD that libcups evaluates during the lifetime of this object. libcups
// evaluates all of them whenever a choice is marked, and again for each choice that it tries in order to
// resolve a conflict. The PPD is borrowed and outlives this object. Scopes may be nested; the innermost one
// applies.
class PpdEvaluation
{
public:
    // libcups evaluates no constraint: for marking choices. The `conflicted` flags of the record are false
    // until libcups evaluates the constraints again.
    explicit PpdEvaluation(ppd_file_s *ppd);
    // libcups evaluates only the constraints that cupsResolveConflicts() needs for the marks to which `rules`
    // was refreshed; its result is that for all constraints. There is no limit for a PPD with
    // cupsUIConstraints, whose resolvers may change any option.
    PpdEvaluation(ppd_file_s *ppd, const PpdRules &rules);
    ~PpdEvaluation();
    PpdEvaluation(const PpdEvaluation &) = delete;
    PpdEvaluation &operator=(const PpdEvaluation &) = delete;

private:
    struct Free
    {
        void operator()(_cups_array_s *array) const;
    };

    ppd_file_s *m_ppd;
    _cups_array_s *m_all; // of libcups; null until libcups first evaluates the constraints
    std::unique_ptr<_cups_array_s, Free> m_limited;
};

} // namespace constraints
