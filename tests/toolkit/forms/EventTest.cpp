#include "toolkit/forms/Event.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

int trapped = 0;

struct Listener {
    int heard = 0;
    void hear(int value) { heard = value; }
    void fail(int /*value*/) { throw std::runtime_error("handler"); }
};

class EventTest : public testing::Test {
protected:
    void SetUp() override {
        trapped = 0;
        errorTrap = [] { ++trapped; };
    }
    void TearDown() override { errorTrap = nullptr; }
};

}  // namespace

TEST_F(EventTest, RaisesItsHandler) {
    Listener listener;
    Event<int> event;
    EXPECT_FALSE(event.isBound());
    event.raise(1);
    event.bind(&listener, &Listener::hear);
    EXPECT_TRUE(event.isBound());
    event.raise(2);
    EXPECT_EQ(listener.heard, 2);
    EXPECT_EQ(trapped, 0);
}

TEST_F(EventTest, AnErrorInAHandlerEndsInTheTrap) {
    Listener listener;
    Event<int> event;
    event.bind(&listener, &Listener::fail);
    event.raise(1);
    EXPECT_EQ(trapped, 1);
}

TEST_F(EventTest, AnErrorThatIsPassedOnIsTheCallers) {
    Listener listener;
    Event<int> event;
    event.bind(&listener, &Listener::fail);
    EXPECT_THROW(event.pass(1), std::runtime_error);
    EXPECT_EQ(trapped, 0);
}

TEST_F(EventTest, AHandlerMayAnswerThroughAReference) {
    Event<bool&> event;
    event.bind([](bool& answer) { answer = true; });
    bool answer = false;
    event.raise(answer);
    EXPECT_TRUE(answer);
}

TEST_F(EventTest, ASecondHandlerIsRefused) {
    Listener listener;
    Event<int> event;
    event.bind(&listener, &Listener::hear);
    EXPECT_DEATH(event.bind(&listener, &Listener::fail), "isBound");
}
