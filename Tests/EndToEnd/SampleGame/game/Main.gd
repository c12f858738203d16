extends Node2D
# Shows every texture that was imported, a walker on a line, and keeps running until it is ended.

const TEXTURES = 18

var textures = []
var seconds = 0.0


func _ready():
    for index in range(TEXTURES):
        textures.append(load("res://art/tile_%02d.png" % index))
    print("Tetherwalk Sample is running at ", OS.window_size)


func _process(delta):
    seconds += delta
    update()


func _draw():
    var size = get_viewport_rect().size
    draw_rect(Rect2(Vector2(), size), Color(0.1, 0.12, 0.35))
    for index in range(textures.size()):
        draw_texture(textures[index], Vector2(20 + index % 9 * 40, 20 + index / 9 * 40))
    var anchor = Vector2(size.x / 2, 0)
    var walker = anchor + Vector2(sin(seconds) * size.x / 3, size.y * 0.7)
    draw_line(anchor, walker, Color(0.95, 0.5, 0.35), 3.0)
    draw_circle(walker, 14.0, Color(1.0, 1.0, 1.0))
