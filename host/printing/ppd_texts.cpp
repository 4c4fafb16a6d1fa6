// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_texts.h"

#include "host/printing/utf8_text.h"

#include <QByteArrayList>

#include <cups/ppd.h>

#include <cstring>
#include <functional>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace host {

namespace {

// Visits all text fields of the record, always in the same order.
void forEachText(ppd_group_t *groups, int count, const std::function<void(char *)> &visit)
{
    for (int g = 0; g < count; ++g) {
        visit(groups[g].text);
        for (int o = 0; o < groups[g].num_options; ++o) {
            ppd_option_t &option = groups[g].options[o];
            visit(option.text);
            for (int c = 0; c < option.num_choices; ++c)
                visit(option.choices[c].text);
        }
        forEachText(groups[g].subgroups, groups[g].num_subgroups, visit);
    }
}

} // namespace

void localizePpdTexts(ppd_file_t *ppd)
{
    QByteArrayList own;
    forEachText(ppd->groups, ppd->num_groups, [&](char *text) { own.append(text); });
    ppdLocalize(ppd);
    auto next = own.cbegin();
    forEachText(ppd->groups, ppd->num_groups, [&](char *text) {
        if (*text == '\0')
            std::memcpy(text, next->constData(), static_cast<size_t>(next->size()) + 1);
        text[wholeCharacters(text)] = '\0';
        ++next;
    });
}

} // namespace host
