#include "core/Observer.h"

#include "core/ObserverModel.h"

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <vector>

namespace {

using gui::Observer;
using gui::ObserverModel;
using testing::ElementsAre;
using testing::IsEmpty;

class Recorder : public Observer
{
public:
    void update(ObserverModel* model, int aspect) override
    {
        lastModel = model;
        aspects.push_back(aspect);
        if (onUpdate) {
            onUpdate();
        }
    }

    std::vector<int> aspects;
    ObserverModel* lastModel = nullptr;
    std::function<void()> onUpdate;
};

TEST(Observer, NotifyReachesThoseOfTheAspect)
{
    ObserverModel model;
    Recorder one;
    Recorder two;
    one.observe(&model, 1);
    two.observe(&model, 3);
    model.notify(1);
    EXPECT_THAT(one.aspects, ElementsAre(1));
    EXPECT_EQ(one.lastModel, &model);
    EXPECT_THAT(two.aspects, IsEmpty());
}

TEST(Observer, NotifyZeroReachesEveryone)
{
    ObserverModel model;
    Recorder one;
    Recorder two;
    one.observe(&model, 1);
    two.observe(&model, 3);
    model.notify(0);
    EXPECT_THAT(one.aspects, ElementsAre(0));
    EXPECT_THAT(two.aspects, ElementsAre(0));
}

TEST(Observer, NotifyOfAnUnknownAspectReachesNobody)
{
    ObserverModel model;
    Recorder one;
    one.observe(&model, 1);
    model.notify(2);
    model.notify(-1);
    EXPECT_THAT(one.aspects, IsEmpty());
}

TEST(Observer, AttachedToAspectZeroIsReachedByZeroAlone)
{
    ObserverModel model;
    Recorder one;
    one.observe(&model, 0);
    model.notify(1);
    model.notify(0);
    EXPECT_THAT(one.aspects, ElementsAre(0));
}

TEST(Observer, AttachedTwiceToOneAspectIsCalledOnceAndListsTheModelTwice)
{
    ObserverModel model;
    Recorder one;
    one.observe(&model, 1);
    one.observe(&model, 1);
    model.notify(1);
    EXPECT_THAT(one.aspects, ElementsAre(1));
    EXPECT_THAT(one.models(), ElementsAre(&model, &model));
}

TEST(Observer, AttachedToTwoAspectsIsCalledForEachAndOnceForAll)
{
    ObserverModel model;
    Recorder one;
    one.observe(&model, 1);
    one.observe(&model, 2);
    model.notify(1);
    model.notify(2);
    model.notify(0);
    EXPECT_THAT(one.aspects, ElementsAre(1, 2, 0));
}

TEST(Observer, OfTwoModelsIsToldWhichOne)
{
    ObserverModel first;
    ObserverModel second;
    Recorder one;
    one.observe(&first, 1);
    one.observe(&second, 1);
    second.notify(1);
    EXPECT_EQ(one.lastModel, &second);
    first.notify(1);
    EXPECT_EQ(one.lastModel, &first);
}

TEST(Observer, DefaultUpdateDoesNothing)
{
    ObserverModel model;
    Observer plain;
    plain.observe(&model, 1);
    model.notify(1);
    model.notify(0);
}

TEST(Observer, DestroyedBeforeItsModelIsNotCalledAgain)
{
    ObserverModel model;
    int calls = 0;
    {
        Recorder one;
        one.onUpdate = [&] { ++calls; };
        one.observe(&model, 1);
        one.observe(&model, 1);
        one.observe(&model, 2);
        model.notify(1);
    }
    model.notify(1);
    model.notify(2);
    model.notify(0);
    EXPECT_EQ(calls, 1);
}

TEST(Observer, OutlivesItsModel)
{
    auto one = std::make_unique<Recorder>();
    ObserverModel lasting;
    {
        ObserverModel model;
        one->observe(&model, 1);
        one->observe(&lasting, 1);
        one->observe(&model, 1);
    }
    EXPECT_THAT(one->models(), ElementsAre(&lasting));
    lasting.notify(1);
    EXPECT_THAT(one->aspects, ElementsAre(1));
    one.reset();
    lasting.notify(1);
}

TEST(Observer, DetachedOutlivesItsModel)
{
    Recorder one;
    {
        ObserverModel model;
        one.observe(&model, 1);
        model.detach(&one);
        EXPECT_THAT(one.models(), IsEmpty());
        model.notify(0);
    }
    EXPECT_THAT(one.aspects, IsEmpty());
}

TEST(Observer, DetachingWhatIsNotAttachedDoesNothing)
{
    ObserverModel model;
    Recorder one;
    Recorder stranger;
    one.observe(&model, 1);
    model.detach(&stranger);
    model.notify(1);
    EXPECT_THAT(one.aspects, ElementsAre(1));
}

// Whichever of the two is called first takes the other off.
TEST(Observer, DetachedByAnotherDuringNotifyIsLeftOut)
{
    ObserverModel model;
    Recorder one;
    Recorder two;
    one.observe(&model, 1);
    two.observe(&model, 1);
    one.onUpdate = [&] { model.detach(&two); };
    two.onUpdate = [&] { model.detach(&one); };
    model.notify(1);
    EXPECT_EQ(one.aspects.size() + two.aspects.size(), 1U);
}

TEST(Observer, DestroyedByAnotherDuringNotifyIsLeftOut)
{
    for (const int aspect : {0, 1}) {
        ObserverModel model;
        int calls = 0;
        auto one = std::make_unique<Recorder>();
        auto two = std::make_unique<Recorder>();
        // The order of the calls is not known, so the last copy of each closure lives out here.
        const std::function<void()> killTwo = [&] { ++calls, two.reset(); };
        const std::function<void()> killOne = [&] { ++calls, one.reset(); };
        one->onUpdate = killTwo;
        two->onUpdate = killOne;
        one->observe(&model, 1);
        two->observe(&model, 1);
        model.notify(aspect);
        EXPECT_EQ(calls, 1);
    }
}

TEST(Observer, DetachingItselfDuringNotify)
{
    ObserverModel model;
    Recorder one;
    one.onUpdate = [&] { model.detach(&one); };
    one.observe(&model, 1);
    model.notify(1);
    model.notify(1);
    EXPECT_THAT(one.aspects, ElementsAre(1));
}

TEST(Observer, AttachedDuringNotifyIsCalledFromTheNextOn)
{
    ObserverModel model;
    Recorder one;
    std::vector<std::unique_ptr<Recorder>> late;
    one.onUpdate = [&] {
        late.push_back(std::make_unique<Recorder>());
        late.back()->observe(&model, 1);
    };
    one.observe(&model, 1);
    model.notify(1);
    ASSERT_EQ(late.size(), 1U);
    EXPECT_THAT(late.front()->aspects, IsEmpty());
    model.notify(1);
    EXPECT_THAT(late.front()->aspects, ElementsAre(1));
}

TEST(Observer, NotifyWithinNotify)
{
    ObserverModel model;
    Recorder one;
    one.onUpdate = [&] {
        if (one.aspects.size() == 1) {
            model.notify(2);
        }
    };
    one.observe(&model, 1);
    one.observe(&model, 2);
    model.notify(1);
    EXPECT_THAT(one.aspects, ElementsAre(1, 2));
}

} // namespace
