#pragma once

#include "disc/DSCommandList.h"
#include "disc/DSDataFile.h"
#include "disc/DSMenu.h"
#include "disc/DSMenuButton.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/MotionObject.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SbdUtils.h"
#include "storyboard/SourceFileObject.h"
#include "storyboard/TransitionObject.h"
#include "support/XmlFixture.h"

#include <cmath>
#include <initializer_list>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

/// Makes a project through the API as an application may: in any order, with values of any kind.
class RandomProject
{
public:
    explicit RandomProject(unsigned seed) : m_random(seed)
    {
        (void)project.put_Label("a label" + Text()); // a save fills an empty one
        Times(3, [this] { AddTitle(); });
        Times(4, [this] { AddMenu(); });
        Times(2, [this] {
            auto file = std::make_unique<CDSDataFile>();
            (void)file->put_SourcePath(Text());
            Adopt(*project.GetChild(2), std::move(file));
        });
    }

    CDSProjectData project;

private:
    int Up(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    bool Chance() { return Up(1) == 1; }

    template <class Act>
    void Times(int most, Act act)
    {
        for (int left = Up(most); left > 0; --left)
            act();
    }

    double Number()
    {
        constexpr double odd[] = {
            0.0, -0.0, 1e300, 1.0 / 3, 123456.789, -2.5, 1e-9, NAN, INFINITY
        };
        return Chance() ? Up(1000) / 8.0 : odd[Up(int(std::size(odd)) - 1)];
    }

    std::string Text()
    {
        const std::string odd[] = { "",
                                    "plain",
                                    " a  b ",
                                    "<&>\"'",
                                    "x\ny\tz\r",
                                    "\x01\xFF",
                                    "é‰",
                                    R"(C:\\a\b.mpg)",
                                    "%CONTENT%%CONTENT%/x",
                                    "vob:a\\\\b",
                                    "]]>" };
        return odd[Up(int(std::size(odd)) - 1)];
    }

    template <class Node>
    Node& Adopt(CProjectNode& parent, std::unique_ptr<Node> node)
    {
        Node& added = *node;
        parent.AdoptChild(std::move(node), Chance());
        return added;
    }

    xmlNode* Data()
    {
        const char* texts[] = {
            "<effect/>", "<e a='1'>t<b/> <!--c--></e>",
            "<effect><uuid dt='uuid'>{01234567-89AB-CDEF-0123-456789ABCDEF}</uuid><plugin_data>"
            "<html><body><p>words</p></body></html></plugin_data></effect>"
        };
        m_data.emplace_back(texts[Up(2)]);
        return m_data.back().root();
    }

    void Fill(CSourceFileImpl& file)
    {
        file.m_fileName = Text();
        file.m_inPoint = Number();
        file.m_outPoint = Number();
        file.m_volLabel = Text();
        file.m_aspectRatio = Number();
        if (Up(4) == 0) {
            file.m_panZoomEffect = std::make_unique<CEffectObject>();
            Fill(*file.m_panZoomEffect);
        }
    }

    void Fill(CEffectInfoImpl& effect)
    {
        effect.m_layer = Up(5);
        if (Chance())
            (void)effect.PutData(Data(), Chance());
        if (Up(4) == 0) {
            effect.m_alphaFile = std::make_unique<CSourceFileObject>();
            Fill(static_cast<CSourceFileImpl&>(*effect.m_alphaFile));
        }
        effect.PutEffectID(Up(9)); // an application may
    }

    void Fill(CParentObjectImpl& parent, int depth = 0)
    {
        Times(4, [&] {
            const long key = Up(3) - 1;
            const tagENM_LAYER_TYPE type{ Up(3) };
            if (Up(5) == 0) {
                parent.m_layers.erase(key);
            } else if (depth < 2 && Up(3) == 0) {
                CMotionObject* motion = parent.AddMotion(key, type);
                Fill(static_cast<CEffectInfoImpl&>(*motion));
                Fill(static_cast<CSourceFileImpl&>(*motion));
                Fill(static_cast<CParentObjectImpl&>(*motion), depth + 1);
            } else {
                CEffectObject* effect = parent.AddEffect(key, type);
                effect->m_startOffset = Number();
                Fill(static_cast<CEffectInfoImpl&>(*effect));
            }
        });
        Times(2, [&] {
            CAudioObject* audio = parent.AddAudio();
            Fill(static_cast<CSourceFileImpl&>(*audio));
            audio->m_volumeLevel = Number();
            audio->m_audioType = static_cast<unsigned>(Up(100'000));
            Times(4, [&] { audio->m_mixLevels[1.0 + Up(9) * 1e-7] = Number(); });
        });
        if (Up(5) == 0)
            parent.m_audioList[1000 + Up(3)]; // a sound that is no file
    }

    void Fill(CBaseObjectImpl& panel)
    {
        panel.m_duration = Number();
        panel.m_speed = Number();
        panel.m_flags = static_cast<unsigned long>(Up(99));
        if (Chance())
            (void)panel.SetMetaData("Mine", Data());
        if (Up(6) == 0)
            panel.m_metaData.clear();
    }

    void Fill(CQZBaseSBD& storyboard)
    {
        Times(6, [&] {
            const long key = Up(6) - 1;
            if (Up(6) == 0) {
                (void)storyboard.RemovePanel(key);
            } else if (!vantrel::IsClipKey(key)) {
                CTransitionObject* transition = storyboard.AddTransition(key);
                Fill(static_cast<CBaseObjectImpl&>(*transition));
                if (Chance())
                    (void)transition->SetContent(Data());
            } else if (Chance()) {
                CClipObject* clip = storyboard.AddClipPanel(key);
                Fill(static_cast<CBaseObjectImpl&>(*clip));
                Fill(static_cast<CSourceFileImpl&>(*clip));
                Fill(static_cast<CParentObjectImpl&>(*clip));
                Times(3, [&] {
                    clip->MarkerAddToList(Number(), eMarkerType{}, Up(400), tagENM_MARKER_STATE{});
                });
            } else {
                CColorObject* colour = storyboard.AddColorPanel(key);
                Fill(static_cast<CBaseObjectImpl&>(*colour));
                Fill(static_cast<CParentObjectImpl&>(*colour));
            }
        });
        Times(2, [&] {
            CGroupObject* group = storyboard.AddGroup(Up(5));
            (void)group->SetGroupInfo(Up(5), Up(5), Up(5), Text(), Text());
        });
        Times(2, [&] { (void)storyboard.AddSection(Up(300), Up(300)); });
        if (CProductionObject* production = storyboard.m_productionObject.get()) {
            production->m_gradientRows = Up(3);
            production->m_gradientCols = Up(3);
            production->m_gradientColors.assign(static_cast<std::size_t>(Up(9)), 0x112233);
            Fill(static_cast<CParentObjectImpl&>(*production));
            if (Chance())
                production->m_specialEffect = std::make_unique<CMotionObject>();
        }
        if (Up(3) == 0)
            (void)setSbdBkgndVideo(&storyboard, "/a" + Text(), Chance());
        if (Up(3) == 0)
            (void)setSbdBkgndAudio(&storyboard, Text());
    }

    void AddCommands(CProjectNode* list)
    {
        Times(2, [&] {
            auto command = std::make_unique<CDiscCommandNode>();
            (void)command->SetCommandParams({ Up(12) - 1, Up(9), -Up(9) });
            Adopt(*list, std::move(command));
        });
    }

    void AddTitle()
    {
        auto title = std::make_unique<CDSTitle>();
        (void)title->put_Label(Text());
        if (Chance()) {
            (void)title->FinalConstruct();
            AddCommands(title->GetChild(0));
        }
        if (Chance()) {
            (void)title->CreateProduction();
            CQZBaseSBD* storyboard = nullptr;
            (void)title->GetProduction(&storyboard);
            Fill(*storyboard);
        }
        if (Chance())
            title->SetID(Up(50));
        (void)project.AddTitle(0, Keep(std::move(title)));
    }

    void AddMenu()
    {
        auto menu = std::make_unique<CDSMenu>();
        (void)menu->put_Label(Text());
        (void)menu->put_Tag(static_cast<unsigned long>(Up(9)));
        (void)menu->put_TemplateID(Up(9));
        (void)menu->put_BkgndID(Up(3));
        (void)menu->put_Duration(Number());
        if (Chance())
            menu->SetID(Up(50));
        AddCommands(menu->GetChild(6));
        AddElements(*menu->GetChild(8));
        Times(3, [&] {
            auto& button = Adopt(*menu->GetChild(8), std::make_unique<CDSMenuButton>());
            (void)button.SetPosition(float(Number()), float(Number()));
            AddElements(*button.GetChild(3));
        });
        CQZBaseSBD* storyboard = nullptr;
        (void)menu->GetProduction(&storyboard);
        Fill(*storyboard);
        (void)project.AddMenu(Up(1), Keep(std::move(menu)));
    }

    void AddElements(CProjectNode& list)
    {
        Times(2, [&] {
            auto& overlay = Adopt(list, std::make_unique<CDSMenuOverlay>());
            (void)overlay.put_Source(Text());
            (void)overlay.put_AlphaMask(Text());
            (void)overlay.SetSize(float(Number()), float(Number()));
        });
        Times(2, [&] {
            auto& text = Adopt(list, std::make_unique<CDSMenuText>());
            if (Chance())
                (void)text.SetEffectXML(vantrel::AsNode(Data()));
            (void)text.setString(Text());
            (void)text.put_Rotation(float(Number()));
        });
    }

    template <class Node>
    Node* Keep(std::unique_ptr<Node> node)
    {
        Node* kept = node.get();
        m_nodes.push_back(std::move(node));
        return kept;
    }

    std::mt19937 m_random;
    std::vector<XmlText> m_data; ///< lent to effects
    std::vector<std::unique_ptr<CProjectNode>> m_nodes;
};
