#pragma once

#include "platform/form.hpp"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brinewright {

// Those who want to hear of something. Each is known by an address of its own, by which it leaves again; it
// may leave while it is being told.
template <class... What>
struct Listeners {
    using Ear = std::function<void(What...)>;

    void Add(const void* Who, Ear Its_Ear) { Ears.emplace_back(Who, std::move(Its_Ear)); }
    void Drop(const void* Who) {
        std::erase_if(Ears, [Who](const auto& E) { return E.first == Who; });
    }
    // For as long as Window is open.
    void Add(Form& Window, Ear Its_Ear) {
        Add(static_cast<const void*>(&Window), std::move(Its_Ear));
        Window.On_Gone.push_back([this, &Window] { Drop(&Window); });
    }
    void Tell(What... News) const {
        for (std::size_t I = 0; I < Ears.size(); ++I) Ears[I].second(News...);
    }

  private:
    std::vector<std::pair<const void*, Ear>> Ears;
};

// A sentence behind the transmit gate: with faults and line end, as it left or should have left.
struct Sent_Sentence {
    std::string_view Text;
    std::int16_t Port = 0;     // 1 to 28
    bool Link_Took_It = false; // only then it has left
};

enum class TCP_News { Port, Listening, Client_Count, Client_Came, History, Sent };

// What has happened, told to whoever listens: monitors, panels, menus, recorders. Those who tell know nothing
// of them, so that nobody below the windows has to know a window.
struct Reports {
    Listeners<const Sent_Sentence&> Sent;
    Listeners<int, const std::string&> Received; // a line on a serial port
    Listeners<> Switched;                        // the mode, a fault, an option of the state
    Listeners<> Windows;                         // one has opened or closed
    Listeners<> Links_Chosen;                    // other links are in use, or have other numbers
    Listeners<int> Link;                         // the record of a link has changed, by port number
    Listeners<int> Panel;                        // the panel of a serial port has changed in the state
    Listeners<> Ship_Speed;                      // the ship has another speed than its window set
    Listeners<> Ship_Limits;                     // its limits have changed
    Listeners<const std::string&> Said;          // see Say
    Listeners<TCP_News, int> TCP;                // with the element of the history that changed, from 0
};

} // namespace brinewright
