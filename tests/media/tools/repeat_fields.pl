# Usage: repeat_fields.pl FILE
# Makes a progressive MPEG-2 stream without B-frames, in FILE, one of film for interlaced screens:
# no progressive sequence any more, with the flags by which its pictures are shown for three fields
# and two in turn. What is decoded stays the same.
use strict;
use warnings;

my ($file) = @ARGV;
open my $in, '<:raw', $file or die "$file: $!\n";
my $data = do { local $/; <$in> };
close $in;

# top_field_first and repeat_first_field of four pictures
my @pattern = ([1, 1], [0, 0], [0, 1], [1, 0]);
my $picture = 0;
while ($data =~ /\x00\x00\x01\xb5/g) {
    my $at = pos $data;
    my $kind = ord(substr $data, $at, 1) >> 4;
    if ($kind == 1) {    # sequence: the progressive bit goes
        my $byte = ord substr $data, $at + 1, 1;
        substr $data, $at + 1, 1, chr($byte & ~0x08);
    } elsif ($kind == 8) {    # picture
        my ($top, $repeat) = @{$pattern[$picture++ % @pattern]};
        my $byte = ord(substr $data, $at + 3, 1) & ~0x82;
        substr $data, $at + 3, 1, chr($byte | ($top ? 0x80 : 0) | ($repeat ? 0x02 : 0));
    }
    pos $data = $at;
}
die "$file: no pictures\n" if $picture == 0;
open my $out, '>:raw', $file or die "$file: $!\n";
print $out $data;
close $out or die "$file: $!\n";
