#include "engine/render/vertex_submission.h"

#include "engine/object/engine_limits.h"
#include "engine/render/render_state.h"
#include "tests/support/render_fixture.h"
#include "tests/support/render_objects.h"

using namespace varnel_m3g;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

constexpr unsigned strip = 5;  // GL_TRIANGLE_STRIP

class VertexSubmissionTest : public RenderTest {
 protected:
  VertexSubmissionTest() {
    maxTextureUnits = 0;
    appearance = plainAppearance();
    bind();
  }

  Lines setup(const boost::shared_ptr<VertexBuffer>& buffer, float alpha = 1.0f) {
    driver.clear();
    setupVertexArrays(*buffer, alpha, *appearance);
    return take();
  }

  Lines draw(const boost::shared_ptr<IndexBuffer>& indices) {
    driver.clear();
    drawIndexBuffer(strip, *indices);
    return take();
  }

  /// Gives the appearance textured units, this many, and the limits of the engine too.
  void textureUnits(int count) {
    maxTextureUnits = count;
    appearance = plainAppearance();
    for (int i = 0; i < count; ++i) {
      appearance->setTexture(i, Texture2D::create(imageOf(Image2D::RGB, 1, 1, {1, 2, 3})));
    }
    applyAppearance(appearance);
  }

  static boost::shared_ptr<VertexArray> coords(int components = 2) {
    return shortArray(components, ShortArray(static_cast<std::size_t>(4 * components), 1));
  }

  void makeMaterialCurrent() {
    auto lit = plainAppearance();
    lit->setMaterial(Material::create());
    applyAppearance(lit);
  }

  boost::shared_ptr<Appearance> appearance;
};

boost::shared_ptr<VertexBuffer> quadWithColors(int components, const ByteArray& values) {
  auto buffer = unitQuad();
  buffer->setColors(byteArray(components, values));
  return buffer;
}

const ByteArray halfAlpha = {10, 20, 30, -1, 10, 20, 30, -128, 10, 20, 30, 3, 10, 20, 30, 0};

}  // namespace

TEST_F(VertexSubmissionTest, WithoutPositionsTheArrayIsOffAndTheDrawFails) {
  EXPECT_EQ(failureOf<std::runtime_error>([&] { setup(VertexBuffer::create()); }),
            "renderVertexBuffers called with invalid vertex data");
  EXPECT_THAT(take(), ElementsAre("glDisableClientState(GL_VERTEX_ARRAY)"));
}

TEST_F(VertexSubmissionTest, ShortPositionsAreTranslatedScaledAndPointedAt) {
  auto buffer = unitQuad();
  const float bias[3] = {1.0f, 2.0f, 3.0f};
  buffer->setPositions(buffer->getPositions(nullptr), 0.5f, bias);
  EXPECT_THAT(
      setup(buffer),
      ElementsAre("glEnableClientState(GL_VERTEX_ARRAY)", "glTranslatef(1, 2, 3)",
                  "glScalef(0.5, 0.5, 0.5)", StartsWith("glVertexPointer(3, GL_SHORT, 0, "),
                  "glDisableClientState(GL_NORMAL_ARRAY)", "glDisableClientState(GL_COLOR_ARRAY)",
                  StartsWith("glColor4ub(255, 255, 255, 255)")));
  EXPECT_EQ(driver.lastAddress("glVertexPointer"), nullptr) << "the calls were taken";
}

TEST_F(VertexSubmissionTest, AMissingBiasIsZeroAndTheDataIsNotCopied) {
  auto buffer = unitQuad();
  driver.clear();
  setupVertexArrays(*buffer, 1.0f, *appearance);
  EXPECT_EQ(driver.calls("glTranslatef"), Lines{"glTranslatef(0, 0, 0)"});
  EXPECT_EQ(driver.calls("glScalef"), Lines{"glScalef(1, 1, 1)"});
  EXPECT_EQ(driver.lastAddress("glVertexPointer"), buffer->getPositions(nullptr)->shortData());
}

TEST_F(VertexSubmissionTest, NormalsOfBothSizes) {
  auto buffer = unitQuad();
  buffer->setNormals(byteArray(3, {0, 0, 127, 0, 0, 127, 0, 0, 127, 0, 0, 127}));
  driver.clear();
  setupVertexArrays(*buffer, 1.0f, *appearance);
  EXPECT_THAT(driver.calls("glNormalPointer"),
              ElementsAre(StartsWith("glNormalPointer(GL_BYTE, 0, ")));
  EXPECT_EQ(driver.lastAddress("glNormalPointer"), buffer->getNormals()->byteData());
  buffer->setNormals(shortArray(3, {0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1}));
  driver.clear();
  setupVertexArrays(*buffer, 1.0f, *appearance);
  EXPECT_THAT(driver.calls("glNormalPointer"),
              ElementsAre(StartsWith("glNormalPointer(GL_SHORT, 0, ")));
  EXPECT_THAT(
      driver.calls("glEnableClientState"),
      ElementsAre("glEnableClientState(GL_VERTEX_ARRAY)", "glEnableClientState(GL_NORMAL_ARRAY)"));
}

TEST_F(VertexSubmissionTest, ADefaultColourFadesOnlyUnlit) {
  auto buffer = unitQuad();
  buffer->setDefaultColor(static_cast<int>(0xFF102030u));
  EXPECT_EQ(setup(buffer, 0.5f).back(), "glColor4ub(16, 32, 48, 127)");
  EXPECT_EQ(setup(buffer, 1.0f).back(), "glColor4ub(16, 32, 48, 255)");
  makeMaterialCurrent();
  EXPECT_EQ(setup(buffer, 0.5f).back(), "glColor4ub(16, 32, 48, 255)");
}

TEST_F(VertexSubmissionTest, AlmostOpaqueCountsAsOpaque) {
  auto buffer = unitQuad();
  EXPECT_EQ(setup(buffer, 0.9995f).back(), "glColor4ub(255, 255, 255, 255)");
  EXPECT_EQ(setup(buffer, 0.998f).back(), "glColor4ub(255, 255, 255, 254)");
}

TEST_F(VertexSubmissionTest, FadedColoursAreComputedOnceInACopy) {
  auto buffer = quadWithColors(4, halfAlpha);
  setup(buffer, 0.5f);
  ASSERT_TRUE(buffer->getWorkingColors());
  const auto alphaOf = [&](int vertex) {
    return static_cast<unsigned char>(buffer->getWorkingColors()->byteData()[4 * vertex + 3]);
  };
  EXPECT_EQ(alphaOf(0), 127);  // 255 x 0.5, truncated
  EXPECT_EQ(alphaOf(1), 64);
  EXPECT_EQ(alphaOf(2), 1);
  EXPECT_EQ(alphaOf(3), 0);
  EXPECT_EQ(buffer->getWorkingColors()->byteData()[1], 20);
  const auto working = buffer->getWorkingColors();
  // A mark that the next frame must leave.
  const signed char mark[4] = {1, 2, 3, 4};
  working->set(0, 1, mark);
  setup(buffer, 0.5f);
  EXPECT_EQ(buffer->getWorkingColors(), working);
  EXPECT_EQ(alphaOf(0), 4) << "nothing is computed again for the same factor";
  setup(buffer, 0.25f);
  EXPECT_EQ(alphaOf(0), 63);
  EXPECT_EQ(working->byteData()[0], 1) << "only alpha is written again";
}

TEST_F(VertexSubmissionTest, ChangedColoursAreComputedAgain) {
  auto buffer = quadWithColors(4, halfAlpha);
  setup(buffer, 0.5f);
  const signed char changed[4] = {50, 60, 70, 100};
  buffer->getColors()->set(0, 1, changed);
  setup(buffer, 0.5f);
  EXPECT_EQ(buffer->getWorkingColors()->byteData()[3], 50);
  EXPECT_EQ(buffer->getWorkingColors()->byteData()[0], 10) << "red is that of the first copy";
}

TEST_F(VertexSubmissionTest, ChangedColoursAreSeenByEveryBufferThatSharesThem) {
  auto first = quadWithColors(4, halfAlpha);
  auto second = boost::dynamic_pointer_cast<VertexBuffer>(first->duplicate());
  setup(first, 0.5f);
  setup(second, 0.5f);
  const signed char changed[4] = {50, 60, 70, 100};
  first->getColors()->set(0, 1, changed);
  setup(first, 0.5f);
  setup(second, 0.5f);
  EXPECT_EQ(first->getWorkingColors()->byteData()[3], 50);
  EXPECT_EQ(second->getWorkingColors()->byteData()[3], 50);
}

TEST_F(VertexSubmissionTest, ACopyOfAnotherLengthIsMadeAnew) {
  auto buffer = quadWithColors(4, halfAlpha);
  setup(buffer, 0.5f);
  buffer->setColors(nullptr);
  buffer->setPositions(nullptr, 1.0f, nullptr);
  buffer->setColors(byteArray(4, ByteArray(32, 8)));
  buffer->setPositions(shortArray(3, ShortArray(24, 1)), 1.0f, nullptr);
  setup(buffer, 0.5f);
  EXPECT_EQ(buffer->getWorkingColors()->getVertexCount(), 8);
}

TEST_F(VertexSubmissionTest, LitOrOpaqueColoursAreSentAsTheyAre) {
  auto buffer = quadWithColors(4, halfAlpha);
  setup(buffer, 1.0f);
  EXPECT_FALSE(buffer->getWorkingColors());
  makeMaterialCurrent();
  setup(buffer, 0.5f);
  EXPECT_FALSE(buffer->getWorkingColors());
}

TEST_F(VertexSubmissionTest, ThreeComponentColoursDoNotFade) {
  auto buffer = quadWithColors(3, ByteArray(12, 7));
  setup(buffer, 0.5f);
  EXPECT_FALSE(buffer->getWorkingColors());
  ASSERT_TRUE(buffer->getColors()->rgbaCopy());
  EXPECT_EQ(buffer->getColors()->rgbaCopy()[3], 255);
}

TEST_F(VertexSubmissionTest, ATextureWithoutCoordinatesSendsNothing) {
  textureUnits(1);
  for (const std::string& call : setup(unitQuad())) {
    EXPECT_EQ(call.find("Tex"), std::string::npos) << call;
  }
}

TEST_F(VertexSubmissionTest, AUnitWithoutATextureIsSwitchedOff) {
  maxTextureUnits = 1;
  appearance = plainAppearance();
  auto buffer = unitQuad();
  buffer->setTexCoords(0, coords(), 1.0f, nullptr);
  const Lines calls = setup(buffer);
  const Lines last(calls.end() - 2, calls.end());
  EXPECT_THAT(last, ElementsAre("glActiveTexture(GL_TEXTURE0)", "glDisable(GL_TEXTURE_2D)"));
}

TEST_F(VertexSubmissionTest, CoordinatesLoadTheTexturesMatrixThenBiasAndScale) {
  textureUnits(1);
  appearance->getTexture(0)->setTranslation(5.0f, 6.0f, 7.0f);
  auto buffer = unitQuad();
  const float bias[3] = {0.5f, 0.25f, 0.0f};
  buffer->setTexCoords(0, coords(), 2.0f, bias);
  const Lines calls = setup(buffer);
  const Lines texture(calls.begin() + 7, calls.end());
  EXPECT_THAT(
      texture,
      ElementsAre("glActiveTexture(GL_TEXTURE0)", "glClientActiveTexture(GL_TEXTURE0)",
                  "glEnableClientState(GL_TEXTURE_COORD_ARRAY)", "glMatrixMode(GL_TEXTURE)",
                  "glPushMatrix()",
                  "glLoadMatrixf([1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 6, 7, 1])",
                  "glTranslatef(0.5, 0.25, 0)", "glScalef(2, 2, 2)", "glMatrixMode(GL_MODELVIEW)",
                  StartsWith("glTexCoordPointer(2, GL_SHORT, 0, ")));
}

TEST_F(VertexSubmissionTest, AScaleOfOneAndAMissingBiasSendNothing) {
  textureUnits(1);
  auto buffer = unitQuad();
  buffer->setTexCoords(0, coords(), 1.0f, nullptr);
  const Lines calls = setup(buffer);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "glScalef(1, 1, 1)"), 1) << "the positions'";
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "glTranslatef(0, 0, 0)"), 1);
}

TEST_F(VertexSubmissionTest, ThreeComponentCoordinatesAreReadAsPairs) {
  textureUnits(1);
  auto buffer = unitQuad();
  buffer->setTexCoords(0, coords(3), 1.0f, nullptr);
  EXPECT_THAT(setup(buffer), Contains(StartsWith("glTexCoordPointer(2, GL_SHORT, 0, ")));
}

TEST_F(VertexSubmissionTest, FinishPopsOneTextureMatrixAndSwitchesTheArraysOff) {
  setup(unitQuad());
  driver.clear();
  finishVertexArrays();
  EXPECT_THAT(
      take(),
      ElementsAre("glMatrixMode(GL_TEXTURE)", "glPopMatrix()", "glMatrixMode(GL_MODELVIEW)",
                  "glDisableClientState(GL_VERTEX_ARRAY)", "glDisableClientState(GL_NORMAL_ARRAY)",
                  "glDisableClientState(GL_COLOR_ARRAY)",
                  "glDisableClientState(GL_TEXTURE_COORD_ARRAY)"));
}

TEST_F(VertexSubmissionTest, TwoTexturedUnitsLeaveOneMatrixPushed) {
  textureUnits(2);
  auto buffer = unitQuad();
  buffer->setTexCoords(0, coords(), 1.0f, nullptr);
  buffer->setTexCoords(1, coords(), 1.0f, nullptr);
  const Lines calls = setup(buffer);
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "glPushMatrix()"), 2);
  EXPECT_THAT(calls, Contains("glClientActiveTexture(GL_TEXTURE1)"));
  driver.clear();
  finishVertexArrays();
  const Lines after = take();
  EXPECT_EQ(std::count(after.begin(), after.end(), "glPopMatrix()"), 1);
  EXPECT_THAT(after, Not(Contains(StartsWith("glClientActiveTexture"))))
      << "only the last unit's array goes off";
}

TEST_F(VertexSubmissionTest, EightUnitsLeaveTheLastOneActiveAndTheClientAtTheLastArray) {
  maxTextureUnits = 8;
  appearance = plainAppearance();
  auto buffer = unitQuad();
  for (const int unit : {0, 3}) {
    appearance->setTexture(unit, Texture2D::create(imageOf(Image2D::RGB, 1, 1, {1, 2, 3})));
    buffer->setTexCoords(unit, coords(), 1.0f, nullptr);
  }
  driver.clear();
  applyAppearance(appearance);
  setupVertexArrays(*buffer, 1.0f, *appearance);
  drawIndexBuffer(strip, *quadStrip());
  finishVertexArrays();
  EXPECT_EQ(driver.calls("glActiveTexture").back(), "glActiveTexture(GL_TEXTURE7)");
  EXPECT_EQ(driver.calls("glClientActiveTexture").back(), "glClientActiveTexture(GL_TEXTURE3)");
  // Both matrices were pushed on their own units; the one pop meets the last unit, which has none.
  EXPECT_EQ(driver.calls("glPushMatrix").size(), 2u);
  EXPECT_EQ(driver.calls("glPopMatrix").size(), 1u);
  EXPECT_EQ(driver.calls("glDrawArrays").size(), 1u);
}

TEST_F(VertexSubmissionTest, AnImplicitStripIsDrawnFromTheArrays) {
  setup(unitQuad());
  EXPECT_THAT(draw(quadStrip()), ElementsAre("glDrawArrays(GL_TRIANGLE_STRIP, 0, 4)"));
}

TEST_F(VertexSubmissionTest, EachStripIsOneCall) {
  setup(unitQuad());
  const int indices[] = {0, 1, 2, 3, 2, 1, 0};
  const int lengths[] = {3, 4};
  auto strips = TriangleStripArray::create(indices, 7, lengths, 2);
  EXPECT_THAT(draw(strips),
              ElementsAre(StartsWith("glDrawElements(GL_TRIANGLE_STRIP, 3, GL_UNSIGNED_SHORT, "),
                          StartsWith("glDrawElements(GL_TRIANGLE_STRIP, 4, GL_UNSIGNED_SHORT, ")));
}

TEST_F(VertexSubmissionTest, AStripThatReachesPastTheArraysIsSkipped) {
  setup(unitQuad());
  EXPECT_THAT(draw(indexedStrip({0, 1, 4})), IsEmpty());
  EXPECT_THAT(draw(indexedStrip({65535, 1, 2})), IsEmpty());
  const int lengths[] = {3, 3, 3};
  EXPECT_THAT(draw(TriangleStripArray::create(0, lengths, 3)),
              ElementsAre("glDrawArrays(GL_TRIANGLE_STRIP, 0, 3)"));
  EXPECT_THAT(draw(TriangleStripArray::create(1, lengths, 1)),
              ElementsAre("glDrawArrays(GL_TRIANGLE_STRIP, 1, 3)"));
  EXPECT_THAT(draw(TriangleStripArray::create(2, lengths, 1)), IsEmpty());
  const int none[] = {0};
  EXPECT_THAT(draw(TriangleStripArray::create(-5, none, 1)), IsEmpty());
  const int huge[] = {2147483647};
  EXPECT_THAT(draw(TriangleStripArray::create(2147483647, huge, 1)), IsEmpty());
}

TEST_F(VertexSubmissionTest, TheShortestArrayLimitsTheDraw) {
  auto buffer = VertexBuffer::create();
  buffer->setPositions(shortArray(3, ShortArray(24, 1)), 1.0f, nullptr);
  auto positions = buffer->getPositions(nullptr);
  buffer->setPositions(nullptr, 1.0f, nullptr);
  buffer->setNormals(byteArray(3, ByteArray(9, 1)));
  buffer->setPositions(positions, 1.0f, nullptr);
  setup(buffer);
  EXPECT_THAT(draw(indexedStrip({0, 1, 3})), IsEmpty());
  EXPECT_EQ(draw(indexedStrip({0, 1, 2})).size(), 1u);
}

TEST_F(VertexSubmissionTest, AnArrayThatAnEarlierDrawLeftOnIsSwitchedOffWhenItIsTooShort) {
  textureUnits(2);
  auto first = unitQuad();
  first->setTexCoords(0, coords(), 1.0f, nullptr);
  first->setTexCoords(1, coords(), 1.0f, nullptr);
  setup(first);
  finishVertexArrays();
  // Unit 0 is still on and points at four vertices; a draw of as many may read them.
  applyAppearance(appearance);
  EXPECT_THAT(setup(unitQuad()), Not(Contains(StartsWith("glDisableClientState(GL_TEXTURE"))));
  auto larger = VertexBuffer::create();
  larger->setPositions(shortArray(3, ShortArray(24, 1)), 1.0f, nullptr);
  const Lines calls = setup(larger);
  const Lines last(calls.end() - 3, calls.end());
  EXPECT_THAT(last, ElementsAre("glClientActiveTexture(GL_TEXTURE0)",
                                "glDisableClientState(GL_TEXTURE_COORD_ARRAY)",
                                "glClientActiveTexture(GL_TEXTURE1)"));
}
