// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/inline_ppd.h"

#include <QTemporaryFile>

#include <cups/array.h>
#include <cups/ppd.h>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

void InlinePpd::Close::operator()(ppd_file_s *ppd) const
{
    ppdClose(ppd);
}

InlinePpd::InlinePpd(const QByteArray &body)
{
    QTemporaryFile file;
    if (!file.open())
        return;
    file.write("*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n" + body);
    file.close();
    m_ppd.reset(ppdOpenFile(file.fileName().toLocal8Bit().constData()));
    if (m_ppd)
        ppdMarkDefaults(m_ppd.get());
}

void InlinePpd::unmarkAll()
{
    while (auto *choice = static_cast<ppd_choice_t *>(cupsArrayFirst(m_ppd->marked))) {
        choice->marked = 0;
        cupsArrayRemove(m_ppd->marked, choice);
    }
}

QByteArray ppdOption(const QByteArray &name, const QByteArrayList &choices)
{
    const QByteArray keyword = name.split('/').first();
    QByteArray lines = "*OpenUI *" + name + ": PickOne\n";
    if (!choices.isEmpty())
        lines += "*Default" + keyword + ": " + choices.first().split('/').first() + "\n";
    for (const QByteArray &choice : choices)
        lines += "*" + keyword + " " + choice + ": \"\"\n";
    return lines + "*CloseUI: *" + keyword + "\n";
}

QByteArray ppdGroup(const QByteArray &name, const QByteArray &options)
{
    return "*OpenGroup: " + name + "\n" + options + "*CloseGroup: " + name.split('/').first() + "\n";
}

QByteArray ppdConstraint(const QByteArray &side1, const QByteArray &side2)
{
    return "*UIConstraints: *" + side1 + " *" + side2 + "\n";
}
