#pragma once

#include <algorithm>
#include <functional>
#include <vector>

// The listeners of an event source, in the order of their registration. A listener may leave during an event.
template <class Listener>
class ListenerList {
  public:
    void add(Listener *listener) { mListeners.push_back(listener); }
    void remove(Listener *listener) { std::erase(mListeners, listener); }
    void raise(const std::function<void(Listener &)> &event) const {
        const std::vector<Listener *> walked = mListeners;
        for (Listener *listener : walked) {
            if (std::ranges::find(mListeners, listener) != mListeners.end())
                event(*listener);
        }
    }

  private:
    std::vector<Listener *> mListeners;
};
