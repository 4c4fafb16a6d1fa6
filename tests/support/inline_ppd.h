// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <memory>

struct ppd_file_s;

// A PPD defined in a test, opened by libcups with its defaults marked. The record lives as long as the
// object. The body follows the header that is common to all PPDs.
class InlinePpd
{
public:
    explicit InlinePpd(const QByteArray &body);

    // Null if libcups rejects the text.
    ppd_file_s *get() const { return m_ppd.get(); }
    // Removes all marks, including those of the defaults.
    void unmarkAll();

private:
    struct Close
    {
        void operator()(ppd_file_s *ppd) const;
    };
    std::unique_ptr<ppd_file_s, Close> m_ppd;
};

// The lines of one option. Names are a keyword, or "keyword/text". The first choice is the default.
QByteArray ppdOption(const QByteArray &name, const QByteArrayList &choices);
// Options inside a group.
QByteArray ppdGroup(const QByteArray &name, const QByteArray &options);
// A constraint line; sides such as "ColorType Mono".
QByteArray ppdConstraint(const QByteArray &side1, const QByteArray &side2);
