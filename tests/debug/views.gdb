set width 0
set print pretty off
up
echo == list\n
print list
attrmgr list list
print empty
echo == cursors\n
print before
print on
print *on
print filtered
print in_buffer
print no_cursor
attrmgr cursor on
attrmgr cursor 8
echo == buffers\n
attrmgr buffer flat flat_size
attrmgr buffer &flat[0]
attrmgr buffer flat flat_size-10
attrmgr buffer flat 20
attrmgr buffer tlv tlv_size
attrmgr buffer tlv tlv_size-1
attrmgr buffer other
attrmgr buffer other 0
attrmgr buffer 8
echo == damaged\n
print bad_magic
print freed_mark
print no_head
print bad_used
print long_record
print short_records
print loop
print wild_next
attrmgr list itself
echo == wrong use\n
attrmgr list
attrmgr list not_there
attrmgr buffer
echo == handles\n
print nothing
print thin_air
print gone
attrmgr lists
