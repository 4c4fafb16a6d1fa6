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
    // For marking choices: libcups evaluates no constraint. The `conflicted` flags of the record are false
    // until libcups evaluates the constraints again.
    explicit PpdEvaluation(ppd_file_s *ppd);
    // For resolving conflicts among the marks that `rules` has read: libcups evaluates only the constraints
    // that can affect cupsResolveConflicts(), whose result is the same as with all of them. Has no effect on
    // a PPD with cupsUIConstraints, whose resolvers may change any option.
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
