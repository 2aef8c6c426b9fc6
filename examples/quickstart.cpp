#include <Vantrel.h>
#include <iostream>
int main()
{
    auto disc = vantrel::Load("disc.xml");
    for (vantrel::Title title : disc->titles())
        std::cout << title.label() << ", " << title.duration() << " seconds\n";
    disc->label(disc->label() + ", second edition");
    return vantrel::Save(disc, "second-edition.xml") ? 0 : 1;
}
