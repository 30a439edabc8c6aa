#include "DrawingScene.h"

#include "DrawingSceneBuilder.h"

std::shared_ptr<const DrawingScene> DrawingScene::of(const OdDbDatabase& database)
{
    return DrawingSceneBuilder(database).build();
}
