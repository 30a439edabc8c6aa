#include "DrawingScene.h"

#include "DrawingSceneBuilder.h"

std::shared_ptr<const DrawingScene> DrawingScene::of(const OdDbDxfDatabase& database)
{
    return DrawingSceneBuilder(database).build();
}
