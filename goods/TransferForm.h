#pragma once

#include <memory>

/// A form that is never shown: it is loaded to be filled and printed, and there is one of its kind.
template <typename FormClass>
class TransferForm {
public:
    /// The form, loaded unless it stands already. What its constructor throws leaves it unloaded.
    static FormClass& Load()
    {
        if (!Instance())
            Instance().reset(new FormClass);
        return *Instance();
    }
    /// The form while it is loaded, nullptr otherwise.
    static FormClass* Loaded() { return Instance().get(); }
    static void Unload() { Instance().reset(); }

private:
    static std::unique_ptr<FormClass>& Instance()
    {
        static std::unique_ptr<FormClass> instance;
        return instance;
    }
};
