// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// A prescription with several dose channels, of which it shows one.
class MultiChannel {
public:
    virtual ~MultiChannel() = default;

    /// From now on the layer and its scale show this channel.
    virtual void setCurrentChannel(int channel) = 0;
    /// From now on it shows the total of its channels; the first of them where they are maps of
    /// their own, which have no total.
    virtual void showTotal() = 0;
    [[nodiscard]] virtual int channelsCnt() const = 0;
};

}  // namespace campora
