// Lists where the keys of the remote control lead from each button of a disc.

#include <Vantrel.h>

#include <iostream>

int main(int argc, char** argv)
{
    const auto disc = vantrel::Load(argc > 1 ? argv[1] : "");
    for (vantrel::Menu menu : disc->menus())
        for (vantrel::Button button : menu.buttons())
            for (vantrel::Direction key : vantrel::kDirections)
                if (vantrel::Button next = button.neighbour(key))
                    std::cout << menu.label() << ": " << button.label() << ", " << Name(key) << ": "
                              << next.label() << '\n';
    return disc ? 0 : 1;
}
