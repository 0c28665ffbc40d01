// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "platform/desk.h"

namespace campora {

void Desk::tell(std::string_view text, MessageIcon icon) const {
    dialogs.message(text, icon, texts(caption));
}

void Desk::tell(const Failure& failure, MessageIcon icon) const {
    tell(texts.sentence(failure), icon);
}

void Desk::tellError(const Failure& failure) const {
    titled(TextId::Error).tell(failure, MessageIcon::Error);
}

void Desk::tellWrongFile(const Failure& failure) const {
    titled(TextId::WrongFileFormat).tell(failure, MessageIcon::Error);
}

bool Desk::ask(std::string_view question, MessageIcon icon) const {
    return dialogs.askYesNo(question, icon, texts(caption));
}

Answer Desk::askOrCancel(std::string_view question, MessageIcon icon) const {
    return dialogs.askYesNoCancel(question, icon, texts(caption));
}

std::optional<std::string> Desk::askText(TextId prompt, std::string_view proposed,
                                         std::string_view file) const {
    return dialogs.inputBox(
        {prompt, std::string(texts(caption)), std::string(proposed), std::string(file)});
}

}  // namespace campora
